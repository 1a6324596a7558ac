// Every day of four hundred years, every offset, and every value one character away from a date-time.

#include <gtest/gtest.h>
#include <ostrel/date_time.h>

#include <array>
#include <chrono>
#include <string>
#include <string_view>

#include "tests/support/described.h"

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

void expect_as_described(const char* name, int (*validate)(const char*), const std::string& value)
{
    ASSERT_EQ(described_code(name, {value}), validate(value.c_str())) << name << ' ' << value;
}

void expect_value(const std::string& value)
{
    expect_as_described("TcmValidateTime", TcmValidateTime, value);
    expect_as_described("TcmValidateDaylightSavingsTime", TcmValidateDaylightSavingsTime, value);
    expect_as_described("TcmValidateTimeZoneFormate", TcmValidateTimeZoneFormate, value);
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

// There are as many offsets as there are hours and minutes, each of which is one.
TEST(TcmValidateTimeZoneFormate, EverySixCharactersOfItsAlphabet)
{
    for (const char* sign : {"+", "-"}) {
        for (int minutes = 0; minutes < 13 * 60; ++minutes) {
            const std::string value = sign + padded(minutes / 60, 2) + ":" + padded(minutes % 60, 2);
            ASSERT_EQ(0, TcmValidateTimeZoneFormate(value.c_str())) << value;
        }
    }
    constexpr std::string_view kAlphabet = "+-0123456789:x";
    std::array<std::size_t, 6> digits{};
    std::string value(6, kAlphabet[0]);
    int accepted = 0;
    for (std::size_t i = 0; i < digits.size();) {
        accepted += TcmValidateTimeZoneFormate(value.c_str()) == 0 ? 1 : 0;
        for (i = 0; i < digits.size(); ++i) {
            digits.at(i) = (digits.at(i) + 1) % kAlphabet.size();
            value[i] = kAlphabet[digits.at(i)];
            if (digits.at(i) != 0) break;
        }
    }
    EXPECT_EQ(2 * 13 * 60, accepted);
}

}  // namespace ostrel::tests
