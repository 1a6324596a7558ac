#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

ArgumentWords radio() { return text("radio", "the radio"); }

Step refuse_unknown_radio()
{
    return refuse(-1, ignoring_case(none_of("radio", {"RADIO_2.4GHz", "RADIO_5GHz"})));
}

Step by_radio(std::vector<Step> on_2_4_ghz, std::vector<Step> on_5_ghz)
{
    return when(ignoring_case(one_of("radio", {"RADIO_2.4GHz"})), std::move(on_2_4_ghz), std::move(on_5_ghz));
}

Check radio_id()
{
    return check("WLAN_check_radio_id", {radio()},
                 {when(equal(model(), literal("M2840")), {refuse_unknown_radio()},
                       {refuse(-1, ignoring_case(none_of({"RADIO_2.4GHz"})))})});
}

// On 2.4 GHz, only the string "0" selects the channel automatically; other strings that atoi reads as 0 do
// not.
Check channel()
{
    return check("WLAN_check_channel",
                 {text("channel", "a channel, or \"0\" for automatic selection"), radio()},
                 {accept(one_of("channel", {"0"})), refuse_unknown_radio(),
                  by_radio({refuse(-1, not_(listed_by_driver("channel", 15, 13)))},
                           {refuse(-1, not_among("channel", {0, 36, 40, 44, 48, 149, 153, 157, 161}))})});
}

// second_channel requires that the two channels form one of the pairs.
Check second_channel(std::string_view name, std::string_view what,
                     const std::vector<std::pair<int, int>>& pairs)
{
    Numbers primaries;
    for (const auto& [primary, second] : pairs) primaries.push_back(primary);
    std::vector<Step> steps = {reads("second"), refuse(-1, not_among("primary", primaries))};
    for (const auto& [primary, second] : pairs)
        steps.push_back(when(equal("primary", primary), {refuse(-1, not_among("second", {second}))}));
    return check(name,
                 {text("primary", "the primary channel of a pair, or 0 for none"), text("second", what)},
                 std::move(steps));
}

Check wide_channel()
{
    return check("WLAN_check_wide_channel", {text("width", "the width of the channel").in("MHz"), radio()},
                 {reads("width"), refuse_unknown_radio(),
                  by_radio({refuse(-1, none_of("width", {"0", "20"}))},
                           {refuse(-1, none_of("width", {"0", "20", "40"}))})});
}

Check mode()
{
    return check(
        "WLAN_check_IEEE11_mode", {text("mode", "an IEEE 802.11 mode"), radio()},
        {refuse_unknown_radio(),
         by_radio({refuse(-1, none_of("mode", {"802.11b", "802.11g", "802.11n", "802.11bg", "802.11bgn"}))},
                  {refuse(-1, none_of("mode", {"802.11n", "802.11a", "802.11an"}))})});
}

}  // namespace

std::vector<Check> wlan_check_radio()
{
    return {
        radio_id(),
        channel(),
        second_channel("WLAN_check_second_channel", "the other channel of the pair, or 0 for none",
                       {{0, 0},
                        {1, 3},
                        {2, 4},
                        {3, 5},
                        {4, 6},
                        {5, 3},
                        {6, 4},
                        {7, 9},
                        {8, 6},
                        {9, 7},
                        {10, 8},
                        {11, 9},
                        {12, 10},
                        {13, 11}}),
        second_channel(
            "WLAN_check_5g_second_channel", "the centre of the pair, or 0 for none",
            {{0, 0}, {36, 38}, {40, 38}, {44, 46}, {48, 46}, {149, 151}, {153, 151}, {157, 159}, {161, 159}}),
        wide_channel(),
        mode(),
        check("WLAN_check_IEEE11_standard", {text("value", "the letter of an IEEE 802.11 standard")},
              {refuse(-1, none_of({"a", "b", "g", "n"}))}),
    };
}

}  // namespace ostrel::rules
