// Channel pairs and regulatory domains, whose spaces are small enough to be gone through whole.

#include <gtest/gtest.h>
#include <ostrel/result_code.h>
#include <ostrel/wlan_check.h>

#include <set>
#include <string>
#include <utility>

#include "calling/capture.h"

namespace ostrel::tests {

namespace {

TEST(Radio, EveryChannelPair)
{
    const std::set<std::pair<int, int>> pairs = {{0, 0},  {1, 3},  {2, 4},   {3, 5},  {4, 6},
                                                 {5, 3},  {6, 4},  {7, 9},   {8, 6},  {9, 7},
                                                 {10, 8}, {11, 9}, {12, 10}, {13, 11}};
    const std::set<std::pair<int, int>> pairs_5_ghz = {
        {0, 0}, {36, 38}, {40, 38}, {44, 46}, {48, 46}, {149, 151}, {153, 151}, {157, 159}, {161, 159}};
    for (int primary = -2; primary <= 200; ++primary) {
        for (int second = -2; second <= 200; ++second) {
            const std::string first_text = std::to_string(primary);
            const std::string second_text = std::to_string(second);
            EXPECT_EQ(pairs.contains({primary, second}) ? OSTREL_VALID : OSTREL_INVALID,
                      WLAN_check_second_channel(first_text.c_str(), second_text.c_str()))
                << primary << ' ' << second;
            EXPECT_EQ(pairs_5_ghz.contains({primary, second}) ? OSTREL_VALID : OSTREL_INVALID,
                      WLAN_check_5g_second_channel(first_text.c_str(), second_text.c_str()))
                << primary << ' ' << second;
        }
    }
}

TEST(Radio, EveryChannelOf5GHz)
{
    const std::set<int> channels = {0, 36, 40, 44, 48, 149, 153, 157, 161};
    for (int channel = -300; channel <= 300; ++channel) {
        const std::string text = std::to_string(channel);
        EXPECT_EQ(channels.contains(channel) ? OSTREL_VALID : OSTREL_INVALID,
                  WLAN_check_channel(text.c_str(), "RADIO_5GHz"))
            << channel;
    }
}

TEST(Settings, EveryByteOfARegulatoryDomain)
{
    const calling::Capture capture;
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        const int digit = byte >= '0' && byte <= '9' ? OSTREL_VALID : OSTREL_INVALID_VALUE;
        const bool environment = byte == 'O' || byte == 'I' || byte == 'o' || byte == 'i';
        const char first[] = {c, '2', 'O', '\0'};
        const char second[] = {'1', c, 'O', '\0'};
        const char third[] = {'1', '2', c, '\0'};
        EXPECT_EQ(digit, WLAN_check_regulatory_domain(first)) << byte;
        EXPECT_EQ(digit, WLAN_check_regulatory_domain(second)) << byte;
        EXPECT_EQ(environment ? OSTREL_VALID : OSTREL_INVALID_VALUE, WLAN_check_regulatory_domain(third))
            << byte;
    }
}

}  // namespace

}  // namespace ostrel::tests
