#include <ostrel/character_sets.h>
#include <ostrel/wlan_check.h>

#include <string>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

namespace {

Test is_radio(std::string_view name, std::size_t argument)
{
    return when([=](std::span<const Value> values) {
        std::string radio(text_of(values, argument));
        for (char& c : radio) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        return radio == name;
    });
}

Test no_radio(std::size_t argument)
{
    return when([=](std::span<const Value> values) {
        return !is_radio("radio_2.4ghz", argument)(values) && !is_radio("radio_5ghz", argument)(values);
    });
}

void add_radio(std::vector<Function>& all)
{
    all.push_back(check<WLAN_check_radio_id>(
        "WLAN_check_radio_id",
        {{"radio", "RADIO_2.4GHz or RADIO_5GHz, in upper or lower case", {"RADIO_2.4GHz", "RADIO_5GHz"}}},
        "RADIO_2.4GHz, or RADIO_5GHz on model M2840, in any case", any_other(-1)));
    all.push_back(check<WLAN_check_channel>(
        "WLAN_check_channel",
        {{"channel", "the number of a channel; 0 is the automatic one"},
         {"radio", "RADIO_2.4GHz or RADIO_5GHz, in upper or lower case", {"RADIO_2.4GHz", "RADIO_5GHz"}}},
        "0 on any radio; RADIO_2.4GHz: below 14 and among the first 15 "
        "channels of \"wlctl -i wl0 channels\"; "
        "RADIO_5GHz: 0, 36, 40, 44, 48, 149, 153, 157 or 161; text without a number "
        "is 0",
        {{-1, "no radio", no_radio(1)},
         {-1, "no channel of the 5 GHz radio", is_radio("radio_5ghz", 1)},
         {-1, "channel 14 or above on the 2.4 GHz radio",
          both(is_radio("radio_2.4ghz", 1),
               when([](std::span<const Value> values) { return number_of(values, 0) > 13; }))},
         {-1, "not among the first 15 channels that the driver lists, or the driver gave no list",
          is_radio("radio_2.4ghz", 1)}}));
    all.push_back(check<WLAN_check_second_channel>(
        "WLAN_check_second_channel",
        {{"primary", "the number of a channel, 0 to 13"}, {"second", "the number of a channel, 0 to 11"}},
        "second is primary + 2 for 1 to 4 and 7, primary - 2 for "
        "5, 6 and 8 to 13; or both are 0; text without a "
        "number is 0",
        {{-1, "any other pair"}}));
    all.push_back(check<WLAN_check_5g_second_channel>(
        "WLAN_check_5g_second_channel",
        {{"primary", "the number of a channel, 36 to 161, or 0"},
         {"second", "the number of the channel in the middle, 38 to 159, or 0"}},
        "second is 38 for 36 and 40, 46 for 44 and 48, 151 for "
        "149 and 153, 159 for 157 and 161; or both are 0; text without a number is 0",
        {{-1, "any other pair"}}));
    all.push_back(check<WLAN_check_wide_channel>(
        "WLAN_check_wide_channel",
        {{"width", "the width in MHz", {"0", "20", "40"}},
         {"radio", "RADIO_2.4GHz or RADIO_5GHz, in upper or lower case", {"RADIO_2.4GHz", "RADIO_5GHz"}}},
        "0 or 20, and 40 on RADIO_5GHz",
        {{-1, "no radio", no_radio(1)},
         {-1, "no width of that radio", when([](std::span<const Value>) { return true; })}}));
    all.push_back(check<WLAN_check_IEEE11_mode>(
        "WLAN_check_IEEE11_mode",
        {{"mode",
          "a mode of IEEE 802.11",
          {"802.11b", "802.11g", "802.11n", "802.11bg", "802.11bgn", "802.11a", "802.11an"}},
         {"radio", "RADIO_2.4GHz or RADIO_5GHz, in upper or lower case", {"RADIO_2.4GHz", "RADIO_5GHz"}}},
        "RADIO_2.4GHz: 802.11b, 802.11g, 802.11n, 802.11bg or 802.11bgn; RADIO_5GHz: 802.11n, 802.11a or "
        "802.11an",
        {{-1, "no radio", no_radio(1)},
         {-1, "no mode of that radio", when([](std::span<const Value>) { return true; })}}));
    all.push_back(check<WLAN_check_IEEE11_standard>(
        "WLAN_check_IEEE11_standard", {{"value", "a letter of IEEE 802.11", {"a", "b", "g", "n"}}},
        "a, b, g or n", any_other(-1)));
}

void add_settings(std::vector<Function>& all)
{
    all.push_back(check<WLAN_check_ssid>(
        "WLAN_check_ssid",
        {Name("value", "an SSID, 1 to 32 bytes once its character references have been rewritten")
             .writes("the text with its HTML character references rewritten, whatever the answer")},
        "1 to 32 bytes of 0x20 to 0x7E after HTML character references have been rewritten in place",
        {{802, "more than 32 bytes"},
         {803, "not too long, and a byte is not printable ASCII", outside(CHARSET_ASCII_PRINTABLE)},
         {801, "empty"}}));
    all.push_back(check<WLAN_check_max_bit_rate>(
        "WLAN_check_max_bit_rate",
        {{"value",
          "a rate in Mbit/s",
          {"Auto", "1", "2", "5.5", "6", "9", "11", "12", "18", "24", "36", "48", "54"}}},
        "Auto, or one of 1, 2, 5.5, 6, 9, 11, 12, 18, 24, 36, 48 and 54", any_other(402)));
    all.push_back(check<WLAN_check_basic_data_transmit_rate>(
        "WLAN_check_basic_data_transmit_rate",
        {{"value",
          "rates in Mbit/s between single commas, any number of them",
          {"all", "default", "1", "2", "5.5", "6", "9", "11", "12", "18", "24", "36", "48", "54"}}},
        "all, default, or a list of rates between single commas",
        {{402, "no list of rates", fails(rates_fault)}}));
    all.push_back(check<WLAN_check_op_data_transmit_rate>(
        "WLAN_check_op_data_transmit_rate",
        {{"value", "rates in Mbit/s", {"1,2,5.5,6,9,11,12,18,24,36,48,54"}}},
        "1,2,5.5,6,9,11,12,18,24,36,48,54 or the empty value", any_other(402)));
    all.push_back(check<WLAN_check_location_description>(
        "WLAN_check_location_description", {{"value", "a text, at most 4096 bytes"}}, "at most 4096 bytes",
        {{402, "more than 4096 bytes"}}));
    all.push_back(check<WLAN_check_regulatory_domain>(
        "WLAN_check_regulatory_domain", {{"value", "3 bytes"}}, "two digits and one of O, I, o and i",
        {{402, "longer than 3 bytes", longer_than(3)},
         {402, "not two digits and one of O, I, o and i", fails(regulatory_fault)}}));
    all.push_back(check<WLAN_check_device_opration_mode>(
        "WLAN_check_device_opration_mode",
        {{"value",
          "a role, at most 31 bytes",
          {"WirelessBridge", "WirelessRepeater", "WirelessStation", "InfrastructureAccessPoint"}},
         {"readwrite_mode", "which list applies: 0 or 1"}},
        "mode 0: WirelessBridge, WirelessRepeater or WirelessStation; mode 1: InfrastructureAccessPoint",
        mode_codes()));
    all.push_back(check<WLAN_check_DistanceFromRoot>(
        "WLAN_check_DistanceFromRoot", {{"value", "a number, -1 or below"}}, "the leading number is negative",
        {{728, "the number is 0 or above, or there is none"}}));
}

}  // namespace

std::vector<Code> any_other(int code) { return {{code, "any other value"}}; }

std::vector<Code> mode_codes()
{
    const auto is_no_mode = [](std::span<const Value> values) {
        return number_of(values, 1) != 0 && number_of(values, 1) != 1;
    };
    return {{402, "longer than 31 bytes", longer_than(31)},
            {402, "readwrite_mode is neither 0 nor 1", when(is_no_mode)},
            {402, "not in the list of that mode", when([](std::span<const Value>) { return true; })}};
}

void add_radio_checks(std::vector<Function>& all)
{
    add_radio(all);
    add_settings(all);
}

}  // namespace ostrel::catalogue
