// Tests a build for a model other than M2840. Such a model has one radio and allows WEP with RADIUS.

#include <gtest/gtest.h>
#include <ostrel/result_code.h>
#include <ostrel/wlan_check.h>

namespace ostrel::tests {

namespace {

TEST(OtherModel, HasTheFirstRadioOnly)
{
    EXPECT_EQ(OSTREL_VALID, WLAN_check_radio_id("RADIO_2.4GHz"));
    EXPECT_EQ(OSTREL_VALID, WLAN_check_radio_id("radio_2.4ghz"));
    EXPECT_EQ(OSTREL_INVALID, WLAN_check_radio_id("RADIO_5GHz"));
    EXPECT_EQ(OSTREL_INVALID, WLAN_check_radio_id(""));
}

TEST(OtherModel, OffersWepWithRadius)
{
    EXPECT_EQ(OSTREL_VALID, WLAN_check_HNAP_SecurityType("1", "x", "WEP-RADIUS", "WEP-64"));
    EXPECT_EQ(OSTREL_VALID, WLAN_check_HNAP_SecurityType("0", "x", "WEP-RADIUS", "WEP-128"));
    EXPECT_EQ(OSTREL_ENCRYPTION_MISMATCH, WLAN_check_HNAP_SecurityType("1", "x", "WEP-RADIUS", "AES"));
    EXPECT_EQ(OSTREL_SECURITY_TYPE_NOT_ALLOWED,
              WLAN_check_HNAP_SecurityType("0", "auto", "WEP-RADIUS", "WEP-64"));
}

TEST(OtherModel, AnswersTheOtherChecksAlike)
{
    EXPECT_EQ(OSTREL_VALID, WLAN_check_channel("36", "RADIO_5GHz"));
    EXPECT_EQ(OSTREL_VALID, WLAN_check_wide_channel("40", "RADIO_5GHz"));
    EXPECT_EQ(OSTREL_VALID, WLAN_check_HNAP_SecurityType("1", "x", "WEP-OPEN", "WEP-64"));
    EXPECT_EQ(OSTREL_SECURITY_TYPE_NOT_ALLOWED, WLAN_check_HNAP_SecurityType("1", "x", "OPEN", ""));
}

}  // namespace

}  // namespace ostrel::tests
