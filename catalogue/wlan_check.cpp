#include <ostrel/wlan_check.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

namespace {

std::vector<Code> any_other(int code) { return {{code, "any other value"}}; }

std::vector<Code> mode_codes() { return {{402, "longer than 31 bytes, another mode, or not in its list"}}; }

void add_security_modes(std::vector<Function>& all)
{
    all.push_back(check<WLAN_check_beacon_type>("WLAN_check_beacon_type", {"value"},
                                                "None, Basic, WPA, 11i or WPAand11i", any_other(402)));
    all.push_back(check<WLAN_check_basic_encryption_modes>("WLAN_check_basic_encryption_modes", {"value"},
                                                           "WEPEncryption or None", any_other(402)));
    all.push_back(check<WLAN_check_basic_authentication_modes>(
        "WLAN_check_basic_authentication_modes", {"value"}, "None or EAPAuthentication", any_other(402)));
    all.push_back(
        check<WLAN_check_wpa_encryption_modes>("WLAN_check_wpa_encryption_modes", {"value"},
                                               "WEP, TKIP, WEPandTKIP, AES, WEPandAES, TKIPandAES or "
                                               "WEPandTKIPandAES, each with Encryption behind it",
                                               any_other(402)));
    all.push_back(check<WLAN_check_wpa_authentication_modes>("WLAN_check_wpa_authentication_modes", {"value"},
                                                             "PSKAuthentication or EAPAuthentication",
                                                             any_other(402)));
    all.push_back(check<WLAN_check_IEEE11i_encryption_modes>(
        "WLAN_check_IEEE11i_encryption_modes", {"value", "readwrite_mode"},
        "mode 0: AES, WEPandAES, TKIPandAES or WEPandTKIPandAES; mode 1: WEP, TKIP or WEPandTKIP; each with "
        "Encryption behind it",
        mode_codes()));
    all.push_back(check<WLAN_check_IEEE11i_authentication_modes>(
        "WLAN_check_IEEE11i_authentication_modes", {"value", "readwrite_mode"},
        "mode 0: EAPAuthentication or EAPandPSKAuthentication; mode 1: PSKAuthentication", mode_codes()));
    all.push_back(check<WLAN_check_authentication_service_mode>(
        "WLAN_check_authentication_service_mode", {"value"}, "none, LinkAuthentication or RadiusClient",
        any_other(402)));
    all.push_back(check<WLAN_check_HNAP_SecurityType>(
        "WLAN_check_HNAP_SecurityType", {"setting1", "setting2", "type", "encryption"},
        "WEP-OPEN, WEP-SHARED or WEP-RADIUS with WEP-64 or WEP-128; WPA-, WPA2- or WPA-AUTO- before PSK or "
        "RADIUS with TKIP, AES or TKIPORAES; settings 0 and auto allow WPA2 only",
        {{1001, "another type, one that is no WPA2 with settings 0 and auto, or WEP-RADIUS on model M2840"},
         {1002, "an encryption that does not suit the type"}}));
    all.push_back(check<WLAN_check_HNAP_KeyRenewal>(
        "WLAN_check_HNAP_KeyRenewal", {"renewal", "interval", "type"},
        "renewal is false, or the type is one of WEP, or the interval is 600 to 7200 in 3 or 4 digits",
        {{-1, "any other interval"}}));
    all.push_back(check<WLAN_check_radius_sec>("WLAN_check_radius_sec", {"value"}, "1 to 80 bytes",
                                               {{-1, "any other length"}}));
}

void add_keys(std::vector<Function>& all)
{
    all.push_back(check<WLAN_check_preshared_key>(
        "WLAN_check_preshared_key", {"value"}, "64 hexadecimal digits",
        {{600, "another length"}, {803, "the length is right and a character is no hexadecimal digit"}}));
    all.push_back(check<WLAN_check_preshared_key2>(
        "WLAN_check_preshared_key2", {"psk", "passphrase"},
        "the psk is 64 hexadecimal digits; a pass phrase beside it is not looked at, one alone is refused",
        {{600, "the psk is not empty and of another length"},
         {803, "the psk has 64 characters and one is no hexadecimal digit"},
         {801, "a pass phrase without a psk"},
         {402, "both are empty"}}));
    all.push_back(check<WLAN_check_wepkeys>(
        "WLAN_check_wepkeys", {blocks("keys", 4, 257)},
        "four keys of 10 or 26 hexadecimal digits and of one length; an empty or unprintable key is emptied "
        "and skipped, and one must remain",
        {{803, "a printable key with a character that is no hexadecimal digit"},
         {802, "a key of more than 26 digits"},
         {801, "a key of fewer than 10 digits"},
         {731, "a key of 11 to 25 digits, or of another length than an earlier one"},
         {402, "all four keys were skipped"}}));
    all.push_back(check<WLAN_check_keys>(
        "WLAN_check_keys", {"key", "type", "encryption"},
        "PSK types: 64 hexadecimal digits or 8 to 63 bytes of 0x20 to 0x7E; WEP types: 10 such bytes with "
        "WEP-64, 26 with WEP-128; WPA RADIUS types: any key",
        {{-1, "a key that does not suit a PSK type, or another type"},
         {803, "a WEP key that is not empty with a byte that is not printable ASCII"},
         {1002, "a WEP key whose length does not suit the encryption"}}));
    all.push_back(check<WLAN_check_default_wep_key_index>(
        "WLAN_check_default_wep_key_index", {"value"},
        "the leading number is from 0 to 3; text without a number is 0",
        {{402, "the number is below 0 or above 3"}}));
}

void add_radio(std::vector<Function>& all)
{
    all.push_back(check<WLAN_check_radio_id>("WLAN_check_radio_id", {"radio"},
                                             "RADIO_2.4GHz, or RADIO_5GHz on model M2840, in any case",
                                             any_other(-1)));
    all.push_back(check<WLAN_check_channel>(
        "WLAN_check_channel", {"channel", "radio"},
        "0 on any radio; RADIO_2.4GHz: below 14 and among the first 15 "
        "channels of \"wlctl -i wl0 channels\"; "
        "RADIO_5GHz: 0, 36, 40, 44, 48, 149, 153, 157 or 161; text without a number "
        "is 0",
        {{-1, "another channel or radio, or the driver gave no list"}}));
    all.push_back(check<WLAN_check_second_channel>("WLAN_check_second_channel", {"primary", "second"},
                                                   "second is primary + 2 for 1 to 4 and 7, primary - 2 for "
                                                   "5, 6 and 8 to 13; or both are 0; text without a "
                                                   "number is 0",
                                                   {{-1, "any other pair"}}));
    all.push_back(check<WLAN_check_5g_second_channel>(
        "WLAN_check_5g_second_channel", {"primary", "second"},
        "second is 38 for 36 and 40, 46 for 44 and 48, 151 for "
        "149 and 153, 159 for 157 and 161; or both are 0; text without a number is 0",
        {{-1, "any other pair"}}));
    all.push_back(check<WLAN_check_wide_channel>("WLAN_check_wide_channel", {"width", "radio"},
                                                 "0 or 20, and 40 on RADIO_5GHz",
                                                 {{-1, "another width or radio"}}));
    all.push_back(check<WLAN_check_IEEE11_mode>(
        "WLAN_check_IEEE11_mode", {"mode", "radio"},
        "RADIO_2.4GHz: 802.11b, 802.11g, 802.11n, 802.11bg or 802.11bgn; RADIO_5GHz: 802.11n, 802.11a or "
        "802.11an",
        {{-1, "another mode or radio"}}));
    all.push_back(check<WLAN_check_IEEE11_standard>("WLAN_check_IEEE11_standard", {"value"}, "a, b, g or n",
                                                    any_other(-1)));
}

void add_settings(std::vector<Function>& all)
{
    all.push_back(check<WLAN_check_ssid>(
        "WLAN_check_ssid", {"value"},
        "1 to 32 bytes of 0x20 to 0x7E after HTML character references have been rewritten in place",
        {{802, "more than 32 bytes"},
         {803, "not too long, and a byte is not printable ASCII"},
         {801, "empty"}}));
    all.push_back(check<WLAN_check_max_bit_rate>(
        "WLAN_check_max_bit_rate", {"value"},
        "Auto, or one of 1, 2, 5.5, 6, 9, 11, 12, 18, 24, 36, 48 and 54", any_other(402)));
    all.push_back(check<WLAN_check_basic_data_transmit_rate>(
        "WLAN_check_basic_data_transmit_rate", {"value"},
        "all, default, or a list of rates between single commas", any_other(402)));
    all.push_back(check<WLAN_check_op_data_transmit_rate>(
        "WLAN_check_op_data_transmit_rate", {"value"}, "1,2,5.5,6,9,11,12,18,24,36,48,54 or the empty value",
        any_other(402)));
    all.push_back(check<WLAN_check_location_description>(
        "WLAN_check_location_description", {"value"}, "at most 4096 bytes", {{402, "more than 4096 bytes"}}));
    all.push_back(check<WLAN_check_regulatory_domain>("WLAN_check_regulatory_domain", {"value"},
                                                      "two digits and one of O, I, o and i", any_other(402)));
    all.push_back(check<WLAN_check_device_opration_mode>(
        "WLAN_check_device_opration_mode", {"value", "readwrite_mode"},
        "mode 0: WirelessBridge, WirelessRepeater or WirelessStation; mode 1: InfrastructureAccessPoint",
        mode_codes()));
    all.push_back(check<WLAN_check_DistanceFromRoot>("WLAN_check_DistanceFromRoot", {"value"},
                                                     "the leading number is negative",
                                                     {{728, "the number is 0 or above, or there is none"}}));
}

}  // namespace

std::vector<Function> wlan_checks()
{
    std::vector<Function> all;
    add_security_modes(all);
    add_keys(all);
    add_radio(all);
    add_settings(all);
    return all;
}

}  // namespace ostrel::catalogue
