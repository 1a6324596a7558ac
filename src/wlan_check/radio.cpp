#include <ostrel/result_code.h>
#include <ostrel/wlan_check/radio.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <span>

#include "src/support/keywords.h"
#include "src/support/number.h"
#include "src/support/text.h"
#include "src/wlan_check/rules.h"

using namespace ostrel;

namespace {

constexpr auto k2_4GHzRadio = keywords("radio_2.4ghz");
constexpr auto k5GHzRadio = keywords("radio_5ghz");
constexpr auto kWidths = keywords("0|20");
constexpr auto k5GHzWidths = keywords("0|20|40");
constexpr auto kModes = keywords("802.11b|802.11g|802.11n|802.11bg|802.11bgn");
constexpr auto k5GHzModes = keywords("802.11n|802.11a|802.11an");
constexpr auto kStandards = keywords("a|b|g|n");

constexpr char kListFile[] = "/var/hnapwl0chlist";
constexpr char kListCommand[] = "wlctl -i wl0 channels > /var/hnapwl0chlist";
constexpr int kMostListed = 15;
constexpr int kHighestChannel = 13;  // channel 14 is refused even if the driver lists it

struct ChannelPair {
    int primary;
    int second;
};

// Channels 1 to 4 and 7 pair with a higher channel, and all other channels with a lower one. Two zeros mean
// that there is no second channel.
constexpr ChannelPair kPairs[] = {{1, 3}, {2, 4}, {3, 5},  {4, 6},  {5, 3},   {6, 4},   {7, 9},
                                  {8, 6}, {9, 7}, {10, 8}, {11, 9}, {12, 10}, {13, 11}, {0, 0}};
// The second channel is the centre of the 40 MHz pair.
constexpr ChannelPair k5GHzPairs[] = {{36, 38},   {40, 38},   {44, 46},   {48, 46}, {149, 151},
                                      {153, 151}, {157, 159}, {161, 159}, {0, 0}};

bool is_one_of(std::span<const ChannelPair> pairs, const char* primary, const char* second)
{
    const int primary_number = leading_number(primary);
    const int second_number = leading_number(second);
    for (const ChannelPair& pair : pairs) {
        if (pair.primary == primary_number && pair.second == second_number) return true;
    }
    return false;
}

bool is_2_4_ghz(const char* radio) { return is_one_of_ignoring_case(radio, k2_4GHzRadio); }

bool is_5_ghz(const char* radio) { return is_one_of_ignoring_case(radio, k5GHzRadio); }

bool is_5_ghz_channel(int channel)
{
    switch (channel) {
        case 36:
        case 40:
        case 44:
        case 48:
        case 149:
        case 153:
        case 157:
        case 161:
            return true;
        default:
            return false;
    }
}

// is_listed_by_driver runs the wireless driver's tool, which lists the channels that are currently allowed.
bool is_listed_by_driver(int channel)
{
    // The exit status is ignored, because only the list matters.
    // NOLINTNEXTLINE(bugprone-command-processor)
    [[maybe_unused]] const int status = std::system(kListCommand);
    std::FILE* list = std::fopen(kListFile, "r");
    if (list == nullptr) return false;
    bool found = false;
    int listed = 0;
    for (int i = 0; i < kMostListed && !found && std::fscanf(list, "%d", &listed) == 1; ++i) {
        found = listed == channel && listed <= kHighestChannel;
    }
    std::fclose(list);
    unlink(kListFile);
    return found;
}

int require(bool valid) { return valid ? OSTREL_VALID : OSTREL_INVALID; }

}  // namespace

int WLAN_check_radio_id(const char* radio)
{
    if (is_model_m2840()) return require(is_2_4_ghz(radio) || is_5_ghz(radio));
    return require(is_2_4_ghz(radio));
}

int WLAN_check_channel(const char* channel, const char* radio)
{
    if (equals(channel, "0")) return OSTREL_VALID;
    const int number = leading_number(channel);
    if (is_2_4_ghz(radio)) return require(is_listed_by_driver(number));
    // A string without a number is read as 0, which selects the automatic channel on this band.
    return require(is_5_ghz(radio) && (number == 0 || is_5_ghz_channel(number)));
}

int WLAN_check_second_channel(const char* primary, const char* second)
{
    return require(is_one_of(kPairs, primary, second));
}

int WLAN_check_5g_second_channel(const char* primary, const char* second)
{
    return require(is_one_of(k5GHzPairs, primary, second));
}

int WLAN_check_wide_channel(const char* width, const char* radio)
{
    if (is_2_4_ghz(radio)) return require(is_one_of(width, kWidths));
    return require(is_5_ghz(radio) && is_one_of(width, k5GHzWidths));
}

int WLAN_check_IEEE11_mode(const char* mode, const char* radio)
{
    if (is_2_4_ghz(radio)) {
        return require(is_one_of(mode, kModes));
    }
    return require(is_5_ghz(radio) && is_one_of(mode, k5GHzModes));
}

int WLAN_check_IEEE11_standard(const char* value) { return require(is_one_of(value, kStandards)); }
