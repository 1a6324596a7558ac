// A host that defines cmsUtl_strcmp and htmlToText. The library must call them and use their results.

#include <gtest/gtest.h>
#include <ostrel/result_code.h>
#include <ostrel/wlan_check.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "calling/capture.h"

namespace {

using Comparison = std::pair<std::string, std::string>;

std::vector<Comparison> comparisons;
bool all_differ = false;

std::vector<std::size_t> conversions;
std::string replacement;

}  // namespace

extern "C" {

int cmsUtl_strcmp(const char* a, const char* b)
{
    comparisons.emplace_back(a, b);
    return all_differ ? 7 : std::strcmp(a, b);
}

int htmlToText(char* text, std::size_t length)
{
    conversions.push_back(length);
    if (!replacement.empty()) std::memcpy(text, replacement.c_str(), replacement.size() + 1);
    return -1;
}

}  // extern "C"

namespace ostrel::tests {

namespace {

class Host : public testing::Test {
 protected:
    void SetUp() override
    {
        comparisons.clear();
        all_differ = false;
        conversions.clear();
        replacement.clear();
    }

    static int check_ssid(char* value)
    {
        const calling::Capture capture;
        return WLAN_check_ssid(value);
    }
};

Comparison model() { return {"M2840", "M2840"}; }

TEST_F(Host, ComparesTheModel)
{
    EXPECT_EQ(OSTREL_VALID, WLAN_check_radio_id("RADIO_5GHz"));
    EXPECT_EQ(std::vector{model()}, comparisons);
}

TEST_F(Host, DecidesAboutTheModel)
{
    all_differ = true;
    EXPECT_EQ(OSTREL_INVALID, WLAN_check_radio_id("RADIO_5GHz"));
    EXPECT_EQ(OSTREL_VALID, WLAN_check_radio_id("radio_2.4ghz"));
    EXPECT_EQ(OSTREL_VALID, WLAN_check_HNAP_SecurityType("1", "x", "WEP-RADIUS", "WEP-64"));
}

TEST_F(Host, ComparesTheSettingsOfTheSecurityTypeAndStopsAtTheFirstThatDiffers)
{
    EXPECT_EQ(OSTREL_VALID, WLAN_check_HNAP_SecurityType("1", "auto", "WPA-PSK", "TKIP"));
    EXPECT_EQ((std::vector<Comparison>{{"1", "0"}}), comparisons);
    comparisons.clear();
    EXPECT_EQ(OSTREL_SECURITY_TYPE_NOT_ALLOWED, WLAN_check_HNAP_SecurityType("0", "auto", "WPA-PSK", "TKIP"));
    EXPECT_EQ((std::vector<Comparison>{{"0", "0"}, {"auto", "auto"}}), comparisons);
    comparisons.clear();
    EXPECT_EQ(OSTREL_VALID, WLAN_check_HNAP_SecurityType("0", "x", "WEP-OPEN", "WEP-64"));
    EXPECT_EQ((std::vector<Comparison>{{"0", "0"}, {"x", "auto"}, model()}), comparisons);
}

TEST_F(Host, DecidesAboutTheSettings)
{
    all_differ = true;
    EXPECT_EQ(OSTREL_VALID, WLAN_check_HNAP_SecurityType("0", "auto", "WPA-PSK", "TKIP"));
}

TEST_F(Host, IsNotAskedToCompareKeywords)
{
    const calling::Capture capture;
    WLAN_check_wide_channel("20", "RADIO_2.4GHz");
    WLAN_check_beacon_type("WPA");
    WLAN_check_HNAP_KeyRenewal("true", "600", "WPA2-PSK");
    EXPECT_TRUE(comparisons.empty());
}

TEST_F(Host, ConvertsReferencesOnceWithTheLength)
{
    char value[] = "a&amp;b";
    EXPECT_EQ(OSTREL_VALID, check_ssid(value));
    EXPECT_EQ(std::vector<std::size_t>{7}, conversions);
    EXPECT_STREQ("a&amp;b", value) << "this host changed nothing, and the library adds nothing to that";
}

TEST_F(Host, IsAskedForTheEmptyValueToo)
{
    char value[] = "";
    EXPECT_EQ(OSTREL_TOO_SHORT, check_ssid(value));
    EXPECT_EQ(std::vector<std::size_t>{0}, conversions);
}

TEST_F(Host, LeavesWhatIsJudged)
{
    char value[64] = "a text of more than thirty-two bytes";
    replacement = "home";
    EXPECT_EQ(OSTREL_VALID, check_ssid(value));
    EXPECT_STREQ("home", value);
    replacement = "caf\xE9";
    EXPECT_EQ(OSTREL_FORBIDDEN_CHARACTER, check_ssid(value));
    EXPECT_STREQ("caf\xE9", value);
}

}  // namespace

}  // namespace ostrel::tests
