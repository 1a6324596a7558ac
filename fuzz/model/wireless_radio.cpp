// The radio and its channels.
#include <set>

#include "fuzz/model/generic.h"

namespace ostrel::model {

namespace {

using Pairs = std::set<std::pair<int, int>>;

bool is_slow(const std::string& radio) { return rule::equal_ignoring_case(radio, "RADIO_2.4GHz"); }
bool is_fast(const std::string& radio) { return rule::equal_ignoring_case(radio, "RADIO_5GHz"); }

Answer verdict(bool good) { return silent(good ? 0 : -1); }

Answer radio(const std::string& value)
{
    return verdict(is_slow(value) || (is_fast(value) && std::string(OSTREL_MODEL) == "M2840"));
}

// The 2.4 GHz radio's driver would have to be asked.
Answer channel(const std::string& value, const std::string& radio)
{
    if (value == "0") return silent(0);
    if (is_slow(radio)) return undefined();
    if (!is_fast(radio)) return silent(-1);
    const Number read = read_number(value);
    if (read.undefined) return undefined();
    const std::set<int> channels = {0, 36, 40, 44, 48, 149, 153, 157, 161};
    return verdict(channels.contains(read.value));
}

Answer paired(const Pairs& pairs, const std::string& primary, const std::string& second)
{
    const Number first = read_number(primary);
    const Number other = read_number(second);
    if (first.undefined || other.undefined) return undefined();
    return verdict(pairs.contains({first.value, other.value}));
}

Answer slow_pair(const std::string& primary, const std::string& second)
{
    const Pairs pairs = {{0, 0}, {1, 3}, {2, 4}, {3, 5},  {4, 6},  {5, 3},   {6, 4},
                         {7, 9}, {8, 6}, {9, 7}, {10, 8}, {11, 9}, {12, 10}, {13, 11}};
    return paired(pairs, primary, second);
}

Answer fast_pair(const std::string& primary, const std::string& second)
{
    const Pairs pairs = {{0, 0},     {36, 38},   {40, 38},   {44, 46},  {48, 46},
                         {149, 151}, {153, 151}, {157, 159}, {161, 159}};
    return paired(pairs, primary, second);
}

Answer one_of_radio(const std::string& value, const std::string& radio, const std::set<std::string>& slow,
                    const std::set<std::string>& fast)
{
    if (is_slow(radio)) return verdict(slow.contains(value));
    return verdict(is_fast(radio) && fast.contains(value));
}

Answer width(const std::string& value, const std::string& radio)
{
    return one_of_radio(value, radio, {"0", "20"}, {"0", "20", "40"});
}

Answer mode(const std::string& value, const std::string& radio)
{
    return one_of_radio(value, radio, {"802.11b", "802.11g", "802.11n", "802.11bg", "802.11bgn"},
                        {"802.11n", "802.11a", "802.11an"});
}

Answer standard(const std::string& value)
{
    return verdict(value == "a" || value == "b" || value == "g" || value == "n");
}

}  // namespace

void add_wireless_radio(Models& models)
{
    models["WLAN_check_radio_id"] = on_text<radio>;
    models["WLAN_check_channel"] = on_texts<channel>;
    models["WLAN_check_second_channel"] = on_texts<slow_pair>;
    models["WLAN_check_5g_second_channel"] = on_texts<fast_pair>;
    models["WLAN_check_wide_channel"] = on_texts<width>;
    models["WLAN_check_IEEE11_mode"] = on_texts<mode>;
    models["WLAN_check_IEEE11_standard"] = on_text<standard>;
}

}  // namespace ostrel::model
