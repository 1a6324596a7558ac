// Tests the sentences for refused dates, times and time zones.

#include <gtest/gtest.h>

#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

TEST(DateTimeTest, Forms)
{
    const auto said = [](const std::string& value) {
        return told("TcmValidateDaylightSavingsTime", {value});
    };
    EXPECT_EQ("accepted", said("02-29T24:59:59"));
    EXPECT_EQ("accepted", said("2000-02-00T24:00:00-59:59"));
    EXPECT_EQ("ends before byte 1, where digits are expected", said(""));
    EXPECT_EQ("ends before byte 11, where \"T\" is expected", said("2010-01-01"));
    EXPECT_EQ("byte 11 is \"t\"; \"T\" is expected there", said("2010-01-01t00:00:00"));
    EXPECT_EQ("byte 20 is \"Z\"; + - or the end is expected there", said("2010-01-01T00:00:00Z"));
    EXPECT_EQ("continues at byte 14, where it must end", said("0329T02:00:00+01:00"));
}

TEST(DateTimeTest, Fields)
{
    const auto said = [](const std::string& value) { return told("TcmValidateTime", {value}); };
    EXPECT_EQ("the year is 1969; at least 1970 is needed", said("1969-12-31T23:59:59"));
    EXPECT_EQ("the month is 0; at least 1 is needed", said("20100010T10:00:00"));
    EXPECT_EQ("the month is 13; at most 12 is allowed", said("2010-13-10T10:00:00"));
    EXPECT_EQ("the day is 29; at most 28 is allowed", said("2011-02-29T10:00:00"));
    EXPECT_EQ("the hour is 25; at most 24 is allowed", said("20110110T25:00:00"));
    EXPECT_EQ("the minute is 60; at most 59 is allowed", said("2011-01-10T24:60:00"));
    EXPECT_EQ("the second is 60; at most 59 is allowed", said("2011-01-10T24:00:60"));
    EXPECT_EQ("the hour of the offset is 60; at most 59 is allowed", said("2011-01-10T24:00:00+60:00"));
    EXPECT_EQ("the minute of the offset is 60; at most 59 is allowed", said("2011-01-10T24:00:00+00:60"));
    EXPECT_EQ("the day is 30; at most 29 is allowed",
              told("TcmValidateDaylightSavingsTime", {"0230T00:00:00"}));
    EXPECT_EQ("is 31; at most 30 is allowed", told("ValidateDay", {2010LL, 4LL, 31LL}));
    EXPECT_EQ(8, answer_of("TcmValidateTime", {"2011-02-29T10:00:00"}).reason.offset);
}

TEST(TimeZoneTest, OffsetsAndNames)
{
    const auto answered = [](const char* offset, const char* name) {
        return answer_of("Time_validate_tzone_and_tzone_name", {offset, name});
    };
    EXPECT_EQ("accepted", told(answered("-04:00", "La Paz")));
    EXPECT_EQ(
        "does not occur in any name for this offset: \"Atlantic Time\", \"Caracas, La Paz\", "
        "Santiago",
        told(answered("-04:00", "Lima")));
    EXPECT_EQ("tzone_name", answered("-04:00", "Lima").reason.name);
    const Answer unknown = answered("+00:00", "London");
    EXPECT_EQ("tzone", unknown.reason.name);
    EXPECT_TRUE(told(unknown).starts_with("is not one of -12:00, -11:00, -10:00, "));
    EXPECT_EQ(32, std::get<std::vector<std::string_view>>(unknown.reason.allowed).size());
    const Answer no_name = answered("+00:00", "");
    EXPECT_EQ("tzone", no_name.reason.name);
    EXPECT_TRUE(told(no_name).starts_with("does not occur in any of -12:00, -11:00, "));
    const Answer no_offset = answered("", "tokyo");
    EXPECT_EQ("tzone_name", no_offset.reason.name);
    EXPECT_EQ(75, std::get<std::vector<std::string_view>>(no_offset.reason.allowed).size());
}

TEST(TimeZoneTest, BothOrNone)
{
    const char* const name = "TIME_check_sync_daylight_saving_time";
    EXPECT_EQ("is empty, but the other value is not", told(name, {"", "x"}));
    EXPECT_EQ("start", answer_of(name, {"", "x"}).reason.name);
    EXPECT_EQ("end", answer_of(name, {"x", ""}).reason.name);
}

// If a value is accepted but a line is printed, the answer contains the reason for that line.
TEST(TimeZoneTest, UnprintableValuesPass)
{
    const Answer answer = answer_of("TIME_check_local_time_zone", {"+08:\t0"});
    EXPECT_EQ(0, answer.code);
    ASSERT_EQ(1, answer.printed.size());
    EXPECT_EQ("not_in_set", answer.printed[0].id);
    EXPECT_EQ(4, answer.printed[0].offset);
}

}  // namespace

}  // namespace ostrel::rules
