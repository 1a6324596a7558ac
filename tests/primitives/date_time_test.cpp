// Every day of four hundred years, every offset, and every value one character away from a date-time.

#include <gtest/gtest.h>
#include <ostrel/date_time.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>

namespace ostrel::tests {

namespace {

// is_calendar_day leaves the calendar to the C++ library, and the missing lower bound to the first line.
bool is_calendar_day(int year, unsigned month, int day)
{
    if (day < 1) return month >= 1 && month <= 12;
    return std::chrono::year_month_day(std::chrono::year(year), std::chrono::month(month),
                                       std::chrono::day(static_cast<unsigned>(day)))
        .ok();
}

bool has_separators(const std::string& value, std::initializer_list<std::size_t> places,
                    const char* separators)
{
    for (std::size_t i = 0, next = 0; i < value.size(); ++i) {
        if (next < places.size() && places.begin()[next] == i) {
            const char expected = separators[next++];
            if (expected == '+' ? value[i] != '+' && value[i] != '-' : value[i] != expected) return false;
        } else if (value[i] < '0' || value[i] > '9') {
            return false;
        }
    }
    return true;
}

bool is_below(int bound, const std::string& value, std::size_t place)
{
    return std::stoi(value.substr(place, 2)) < bound;
}

// slow_tail judges "MM", "DD" and "hh:mm:ss" at their places.
bool slow_tail(const std::string& value, int year, std::size_t month, std::size_t day, std::size_t hour)
{
    return is_below(25, value, hour) && is_below(60, value, hour + 3) && is_below(60, value, hour + 6) &&
           is_calendar_day(year, static_cast<unsigned>(std::stoi(value.substr(month, 2))),
                           std::stoi(value.substr(day, 2)));
}

bool slow_date_time(const std::string& value)
{
    if (value.size() == 17) {
        return has_separators(value, {8, 11, 14}, "T::") && std::stoi(value.substr(0, 4)) > 1969 &&
               slow_tail(value, std::stoi(value.substr(0, 4)), 4, 6, 9);
    }
    const bool has_offset = value.size() == 25;
    if (value.size() != 19 && !has_offset) return false;
    if (has_offset && !has_separators(value, {4, 7, 10, 13, 16, 19, 22}, "--T::+:")) return false;
    if (!has_offset && !has_separators(value, {4, 7, 10, 13, 16}, "--T::")) return false;
    if (has_offset && !(is_below(60, value, 20) && is_below(60, value, 23))) return false;
    const int year = std::stoi(value.substr(0, 4));
    return year > 1969 && slow_tail(value, year, 5, 8, 11);
}

bool slow_switch_over(const std::string& value)
{
    if (slow_date_time(value)) return true;
    if (value.size() == 13) {
        return has_separators(value, {4, 7, 10}, "T::") && slow_tail(value, 0, 0, 2, 5);
    }
    return value.size() == 14 && has_separators(value, {2, 5, 8, 11}, "-T::") && slow_tail(value, 0, 0, 3, 6);
}

bool slow_offset(const std::string& value)
{
    if (value.size() != 6 || !has_separators(value, {0, 3}, "+:")) return false;
    int hours = 0;
    int minutes = 0;
    std::sscanf(value.c_str(), value[0] == '+' ? "+%d:%d" : "-%d:%d", &hours, &minutes);
    return hours < 13 && minutes < 60;
}

void expect_value(const std::string& value)
{
    ASSERT_EQ(slow_date_time(value) ? 0 : -1, TcmValidateTime(value.c_str())) << value;
    ASSERT_EQ(slow_switch_over(value) ? 0 : -1, TcmValidateDaylightSavingsTime(value.c_str())) << value;
    ASSERT_EQ(slow_offset(value) ? 0 : -1, TcmValidateTimeZoneFormate(value.c_str())) << value;
}

// padded writes a number of at most that many digits with leading zeros.
template <typename Number>
std::string padded(Number number, std::size_t width)
{
    const std::string digits = std::to_string(number);
    return std::string(width - digits.size(), '0') + digits;
}

const char* const kValues[] = {"20120229T23:59:59",
                               "2012-02-29T23:59:59",
                               "2012-02-29T23:59:59+12:34",
                               "2012-02-29T23:59:59-59:59",
                               "0229T23:59:59",
                               "02-29T23:59:59",
                               "+12:59",
                               "-00:00"};

}  // namespace

TEST(ValidateDay, EveryDayOfFourHundredYears)
{
    for (int year = 1970; year < 2370; ++year) {
        for (unsigned month = 0; month <= 13; ++month) {
            for (int day = -1; day <= 33; ++day) {
                ASSERT_EQ(is_calendar_day(year, month, day) ? 0 : -1, ValidateDay(year, month, day))
                    << year << "-" << month << "-" << day;
            }
        }
    }
}

// A year below 0 is a leap year as one above 0 is.
TEST(ValidateDay, LeapDaysOfNegativeYears)
{
    for (int year = -800; year <= 800; ++year) {
        const bool leap = std::chrono::year(year).is_leap();
        ASSERT_EQ(leap ? 0 : -1, ValidateDay(year, 2, 29)) << year;
        ASSERT_EQ(0, ValidateDay(year, 2, 28)) << year;
        ASSERT_EQ(-1, ValidateDay(year, 2, 30)) << year;
    }
}

TEST(TcmValidateTime, EveryDayOfFourHundredYears)
{
    for (int year = 1969; year < 2370; ++year) {
        for (unsigned month = 0; month <= 13; ++month) {
            for (int day = 0; day <= 32; ++day) {
                const int expected = year >= 1970 && is_calendar_day(year, month, day) ? 0 : -1;
                for (const char* dash : {"", "-"}) {
                    const std::string value =
                        padded(year, 4) + dash + padded(month, 2) + dash + padded(day, 2) + "T12:34:56";
                    ASSERT_EQ(expected, TcmValidateTime(value.c_str())) << value;
                }
            }
        }
    }
}

TEST(TcmValidateTime, EveryTwoDigitsInEveryField)
{
    for (int number = 0; number < 100; ++number) {
        for (const char* value : kValues) {
            const std::string text = value;
            for (std::size_t i = 0; i + 1 < text.size(); ++i) {
                std::string changed = text;
                changed.replace(i, 2, padded(number, 2));
                expect_value(changed);
            }
        }
    }
}

TEST(TcmValidateDaylightSavingsTime, EveryDayWithoutAYear)
{
    for (unsigned month = 0; month <= 13; ++month) {
        for (int day = 0; day <= 33; ++day) {
            const int expected = is_calendar_day(0, month, day) ? 0 : -1;
            for (const char* dash : {"", "-"}) {
                const std::string value = padded(month, 2) + dash + padded(day, 2) + "T02:00:00";
                ASSERT_EQ(expected, TcmValidateDaylightSavingsTime(value.c_str())) << value;
                ASSERT_EQ(-1, TcmValidateTime(value.c_str())) << value;
            }
        }
    }
}

TEST(DateTime, EveryByteInEveryPlace)
{
    for (const char* value : kValues) {
        const std::string text = value;
        expect_value(text);
        for (std::size_t i = 0; i <= text.size(); ++i) {
            if (i < text.size()) expect_value(text.substr(0, i) + text.substr(i + 1));
            expect_value(text.substr(0, i));
            for (int byte = 1; byte < 256; ++byte) {
                const std::string inserted(1, static_cast<char>(byte));
                expect_value(text.substr(0, i) + inserted + text.substr(i));
                if (i < text.size()) expect_value(text.substr(0, i) + inserted + text.substr(i + 1));
            }
        }
    }
}

TEST(TcmValidateTimeZoneFormate, EverySixCharactersOfItsAlphabet)
{
    constexpr std::string_view kAlphabet = "+-0123456789:x";
    std::array<std::size_t, 6> digits{};
    std::string value(6, kAlphabet[0]);
    for (std::size_t i = 0; i < digits.size();) {
        ASSERT_EQ(slow_offset(value) ? 0 : -1, TcmValidateTimeZoneFormate(value.c_str())) << value;
        for (i = 0; i < digits.size(); ++i) {
            digits.at(i) = (digits.at(i) + 1) % kAlphabet.size();
            value[i] = kAlphabet[digits.at(i)];
            if (digits.at(i) != 0) break;
        }
    }
}

}  // namespace ostrel::tests
