// Tests the sentences for values that the wireless checks refuse, and the words that only these checks need.

#include <gtest/gtest.h>
#include <ostrel/wlan_check.h>

#include "oracle/driver.h"
#include "oracle/library.h"
#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

// said returns the argument's name and the sentence about it.
std::string said(std::string_view name, const std::vector<Value>& values, const Build& build = {})
{
    const Answer answer = answer_of(name, values, build);
    return answer.is_refusal ? std::string(answer.reason.name) + " " + told(answer) : told(answer);
}

TEST(WlanReasonTest, NamesTheModesOfTheRadio)
{
    EXPECT_EQ("mode is not one of 802.11b, 802.11g, 802.11n, 802.11bg, 802.11bgn",
              said("WLAN_check_IEEE11_mode", {"802.11a", "RADIO_2.4GHz"}));
    EXPECT_EQ("mode is not one of 802.11n, 802.11a, 802.11an",
              said("WLAN_check_IEEE11_mode", {"802.11g", "radio_5ghz"}));
    EXPECT_EQ("radio is not one of RADIO_2.4GHz, RADIO_5GHz",
              said("WLAN_check_IEEE11_mode", {"802.11n", "RADIO_6GHz"}));
    EXPECT_EQ("width is not one of 0, 20", said("WLAN_check_wide_channel", {"40", "RADIO_2.4GHz"}));
}

TEST(WlanReasonTest, NamesTheChannelOfThePair)
{
    EXPECT_EQ("second is 5; only 9 is allowed", said("WLAN_check_second_channel", {"7", "5"}));
    EXPECT_EQ("second is read as 0; only 38 is allowed", said("WLAN_check_5g_second_channel", {"40", ""}));
    EXPECT_EQ("primary is 1; only 0, 36, 40, 44, 48, 149, 153, 157, 161 are allowed",
              said("WLAN_check_5g_second_channel", {"1", "3"}));
    EXPECT_EQ(
        "second contains the number 4294967295, which does not fit in an int; this gateway reads it as -1; "
        "only 3 "
        "is allowed",
        said("WLAN_check_second_channel", {"1", "4294967295"}));
}

TEST(WlanReasonTest, NamesWhatTheModelOffers)
{
    Build build;
    build.model = "M2841";
    EXPECT_EQ("accepted", said("WLAN_check_radio_id", {"RADIO_5GHz"}));
    EXPECT_EQ("radio is not RADIO_2.4GHz", said("WLAN_check_radio_id", {"RADIO_5GHz"}, build));
    const std::vector<Value> wep_with_radius = {"1", "", "WEP-RADIUS", "WEP-64"};
    EXPECT_EQ(
        "type is not one of WEP-OPEN, WEP-SHARED, WPA-PSK, WPA-RADIUS, WPA2-PSK, WPA2-RADIUS, "
        "WPA-AUTO-PSK, WPA-AUTO-RADIUS",
        said("WLAN_check_HNAP_SecurityType", wep_with_radius));
    EXPECT_EQ("accepted", said("WLAN_check_HNAP_SecurityType", wep_with_radius, build));
    EXPECT_EQ("type is not one of WPA2-PSK, WPA2-RADIUS",
              said("WLAN_check_HNAP_SecurityType", {"0", "auto", "WPA-PSK", "TKIP"}));
}

TEST(WlanReasonTest, OfKeys)
{
    EXPECT_EQ(
        "type is not one of WEP-OPEN, WEP-SHARED, WEP-RADIUS, WPA-PSK, WPA-RADIUS, WPA2-PSK, "
        "WPA2-RADIUS, WPA-AUTO-PSK, WPA-AUTO-RADIUS",
        said("WLAN_check_keys", {"", "OPEN", ""}));
    EXPECT_EQ("passphrase is given without a pre-shared key; a pass phrase alone is not accepted",
              said("WLAN_check_preshared_key2", {"", "a pass phrase"}));
    EXPECT_EQ("psk has 0 bytes; 64 are needed", said("WLAN_check_preshared_key2", {"", ""}));
    EXPECT_EQ("keys has 12 bytes; one of 10, 26 is needed",
              said("WLAN_check_wepkeys", {std::vector<std::string>{"0123456789AB", "", "", ""}}));
    EXPECT_EQ("keys contains no printable, non-empty key",
              said("WLAN_check_wepkeys", {std::vector<std::string>{"", "", "\t", ""}}));
}

TEST(WlanReasonTest, OfNumbers)
{
    EXPECT_EQ("value is 4; the allowed range is 0 to 3", said("WLAN_check_default_wep_key_index", {"4"}));
    EXPECT_EQ("value is -1; the allowed range is 0 to 3", said("WLAN_check_default_wep_key_index", {"-1"}));
    EXPECT_EQ("accepted", said("WLAN_check_default_wep_key_index", {"abc"}));
    EXPECT_EQ("value is read as 0; at most -1 is allowed", said("WLAN_check_DistanceFromRoot", {"far"}));
    const auto of_interval = [](const char* interval) {
        return said("WLAN_check_HNAP_KeyRenewal", {"true", interval, "WPA2-PSK"});
    };
    EXPECT_EQ("interval is 599; the allowed range is 600 to 7200", of_interval("599"));
    EXPECT_EQ("interval is 7201; the allowed range is 600 to 7200", of_interval("7201"));
    EXPECT_EQ("interval has 5 bytes; at most 4 are allowed", of_interval("03600"));
    EXPECT_EQ("interval byte 1 is \"-\"; digits are allowed", of_interval("-600"));
    EXPECT_EQ("interval is empty", of_interval(""));
}

TEST(WlanReasonTest, OfRates)
{
    EXPECT_EQ("value is not one of all, default, 1, 2, 5.5, 6, 9, 11, 12, 18, 24, 36, 48, 54",
              said("WLAN_check_basic_data_transmit_rate", {"ALL"}));
    EXPECT_EQ("value is not one of 1, 2, 5.5, 6, 9, 11, 12, 18, 24, 36, 48, 54",
              said("WLAN_check_basic_data_transmit_rate", {"1,all"}));
    EXPECT_EQ(1, answer_of("WLAN_check_basic_data_transmit_rate", {"1,all"}).reason.item);
    EXPECT_EQ("value is not one of \"1,2,5.5,6,9,11,12,18,24,36,48,54\", \"\"",
              said("WLAN_check_op_data_transmit_rate", {"1,2"}));
}

TEST(WlanReasonTest, CountsInTheRewrittenText)
{
    EXPECT_EQ(
        "value byte 6 is \\xE9; printable ASCII characters are allowed (with character references "
        "replaced)",
        said("WLAN_check_ssid", {"a&amp;caf&eacute;"}));
    EXPECT_EQ("value byte 10 is \\xE9; printable ASCII characters are allowed",
              said("WLAN_check_ssid", {"a&amp caf\xE9"}));
    EXPECT_EQ(std::vector<Value>{"A&AMP;&#0;\x1A&nbsp"},
              answer_of("WLAN_check_ssid", {"&#x41;&AMP;&#0;&#256;&nbsp"}).after);
}

TEST(WlanReasonTest, NamesWhatTheDriverLists)
{
    const std::vector<Value> seven = {"7", "RADIO_2.4GHz"};
    EXPECT_EQ(Outside::kDriver, answer_of("WLAN_check_channel", seven).outside);
    EXPECT_EQ(Outside::kNo, answer_of("WLAN_check_channel", {"0", nullptr}).outside);
    Build build;
    build.channels = {1, 6, 11, 14};
    EXPECT_EQ("channel is 7; of the channels that the wireless driver lists, 1, 6, 11 are allowed",
              said("WLAN_check_channel", seven, build));
    EXPECT_EQ("channel is 14; of the channels that the wireless driver lists, 1, 6, 11 are allowed",
              said("WLAN_check_channel", {"14", "RADIO_2.4GHz"}, build));
    EXPECT_EQ("accepted", said("WLAN_check_channel", {"6 x", "radio_2.4ghz"}, build));
    build.channels->clear();
    EXPECT_EQ("channel is 7; the wireless driver lists no allowed channel",
              said("WLAN_check_channel", seven, build));
    EXPECT_EQ("accepted", said("WLAN_check_channel", {"abc", "RADIO_5GHz"}, build));
    EXPECT_EQ("channel is 52; only 0, 36, 40, 44, 48, 149, 153, 157, 161 are allowed",
              said("WLAN_check_channel", {"52", "RADIO_5GHz"}, build));
}

TEST(WlanChannelTest, EveryChannelOfEveryList)
{
    for (const Build& build : oracle::builds_with_channels()) {
        const oracle::Driver driver(build.channels.value());
        for (int number = -4; number < 41; ++number) {
            const std::string channel = std::to_string(number);
            const int code = answer_of("WLAN_check_channel", {channel, "RADIO_2.4GHz"}, build).code;
            EXPECT_EQ(WLAN_check_channel(channel.c_str(), "RADIO_2.4GHz"), code) << channel;
        }
    }
}

TEST(WlanWordsTest, ChannelsOfTheDriver)
{
    const auto judged = [](Condition condition, const char* channel, std::vector<int> channels) {
        Build build;
        build.channels = std::move(channels);
        const std::vector<Value> values = {channel};
        const Check described =
            registered(check("a_check", {text("channel", "a channel")}, {refuse(-1, std::move(condition))}));
        return evaluate(described, values, build).reason;
    };
    const Condition listed = listed_by_driver(it, 3, 13);
    const std::vector<int> channels = {14, 6, 13, 11};
    EXPECT_EQ("listed_by_driver", judged(listed, " 13x", channels).id);
    EXPECT_EQ("", judged(not_(listed), "6", channels).id);
    for (const char* channel : {"7", "14", "11"}) {
        const Reason reason = judged(not_(listed), channel, channels);
        EXPECT_EQ("not_listed_by_driver", reason.id);
        EXPECT_EQ(Datum(std::vector<long long>{6, 13}), reason.allowed);
    }
    EXPECT_EQ("", judged(not_(listed), "4294967302", channels).id);
    EXPECT_EQ("number_beyond_int", judged(not_(listed), "4294967303", channels).id);
    EXPECT_EQ("no_channel_listed", judged(not_(listed), "6", {14}).id);
    EXPECT_EQ("no_channel_listed", judged(not_(listed), "6", {}).id);
}

}  // namespace

}  // namespace ostrel::rules
