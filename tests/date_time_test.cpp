// Compares the days of four centuries with the C++ library's calendar, and tests every time-zone offset.

#include <gtest/gtest.h>
#include <ostrel/date_time.h>

#include <array>
#include <chrono>
#include <string>
#include <string_view>

namespace ostrel::tests {

namespace {

// is_calendar_day uses the calendar of the C++ library. Like ValidateDay, it has no lower bound for the day.
bool is_calendar_day(int year, unsigned month, int day)
{
    if (day < 1) return month >= 1 && month <= 12;
    return std::chrono::year_month_day(std::chrono::year(year), std::chrono::month(month),
                                       std::chrono::day(static_cast<unsigned>(day)))
        .ok();
}

template <typename Number>
std::string padded(Number number, std::size_t width)
{
    const std::string digits = std::to_string(number);
    return std::string(width - digits.size(), '0') + digits;
}

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

// Every offset below 13:00 is valid, and the number of accepted strings shows that no other string is.
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
