#include <ostrel/character_sets.h>
#include <ostrel/wlan_check.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

namespace {

bool wants_wpa2(std::span<const Value> values)
{
    return text_of(values, 0) == "0" && text_of(values, 1) == "auto" && text_of(values, 2) != "WPA2-PSK" &&
           text_of(values, 2) != "WPA2-RADIUS";
}

void add_security_modes(std::vector<Function>& all)
{
    all.push_back(check<WLAN_check_beacon_type>(
        "WLAN_check_beacon_type", {{"value", "a beacon type", {"None", "Basic", "WPA", "11i", "WPAand11i"}}},
        "None, Basic, WPA, 11i or WPAand11i", any_other(402)));
    all.push_back(check<WLAN_check_basic_encryption_modes>(
        "WLAN_check_basic_encryption_modes", {{"value", "an encryption mode", {"WEPEncryption", "None"}}},
        "WEPEncryption or None", any_other(402)));
    all.push_back(check<WLAN_check_basic_authentication_modes>(
        "WLAN_check_basic_authentication_modes",
        {{"value", "an authentication mode", {"None", "EAPAuthentication"}}}, "None or EAPAuthentication",
        any_other(402)));
    all.push_back(check<WLAN_check_wpa_encryption_modes>(
        "WLAN_check_wpa_encryption_modes",
        {{"value",
          "an encryption mode",
          {"WEPEncryption", "TKIPEncryption", "WEPandTKIPEncryption", "AESEncryption", "WEPandAESEncryption",
           "TKIPandAESEncryption", "WEPandTKIPandAESEncryption"}}},
        "WEP, TKIP, WEPandTKIP, AES, WEPandAES, TKIPandAES or "
        "WEPandTKIPandAES, each with Encryption behind it",
        any_other(402)));
    all.push_back(check<WLAN_check_wpa_authentication_modes>(
        "WLAN_check_wpa_authentication_modes",
        {{"value", "an authentication mode", {"PSKAuthentication", "EAPAuthentication"}}},
        "PSKAuthentication or EAPAuthentication", any_other(402)));
    all.push_back(check<WLAN_check_IEEE11i_encryption_modes>(
        "WLAN_check_IEEE11i_encryption_modes",
        {{"value",
          "an encryption mode, at most 31 bytes",
          {"WEPEncryption", "TKIPEncryption", "WEPandTKIPEncryption", "AESEncryption", "WEPandAESEncryption",
           "TKIPandAESEncryption", "WEPandTKIPandAESEncryption"}},
         {"readwrite_mode", "which list applies: 0 or 1"}},
        "mode 0: AES, WEPandAES, TKIPandAES or WEPandTKIPandAES; mode 1: WEP, TKIP or WEPandTKIP; each with "
        "Encryption behind it",
        mode_codes()));
    all.push_back(check<WLAN_check_IEEE11i_authentication_modes>(
        "WLAN_check_IEEE11i_authentication_modes",
        {{"value",
          "an authentication mode, at most 31 bytes",
          {"EAPAuthentication", "EAPandPSKAuthentication", "PSKAuthentication"}},
         {"readwrite_mode", "which list applies: 0 or 1"}},
        "mode 0: EAPAuthentication or EAPandPSKAuthentication; mode 1: PSKAuthentication", mode_codes()));
    all.push_back(check<WLAN_check_authentication_service_mode>(
        "WLAN_check_authentication_service_mode",
        {{"value", "a service mode, at most 31 bytes", {"none", "LinkAuthentication", "RadiusClient"}}},
        "none, LinkAuthentication or RadiusClient",
        {{402, "longer than 31 bytes", longer_than(31)},
         {402, "none of the keywords", none_of({"none", "LinkAuthentication", "RadiusClient"})}}));
    all.push_back(check<WLAN_check_HNAP_SecurityType>(
        "WLAN_check_HNAP_SecurityType",
        {{"setting1", "the first setting; 0 together with auto allows WPA2 only", {"0"}},
         {"setting2", "the second setting", {"auto"}},
         {"type",
          "a security type",
          {"WEP-OPEN", "WEP-SHARED", "WEP-RADIUS", "WPA-PSK", "WPA-RADIUS", "WPA2-PSK", "WPA2-RADIUS",
           "WPA-AUTO-PSK", "WPA-AUTO-RADIUS"}},
         {"encryption", "an encryption", {"WEP-64", "WEP-128", "TKIP", "AES", "TKIPORAES"}}},
        "WEP-OPEN, WEP-SHARED or WEP-RADIUS with WEP-64 or WEP-128; WPA-, WPA2- or WPA-AUTO- before PSK or "
        "RADIUS with TKIP, AES or TKIPORAES; settings 0 and auto allow WPA2 only",
        {{1001, "no security type",
          none_of({"WEP-OPEN", "WEP-SHARED", "WEP-RADIUS", "WPA-PSK", "WPA-RADIUS", "WPA2-PSK", "WPA2-RADIUS",
                   "WPA-AUTO-PSK", "WPA-AUTO-RADIUS"},
                  2)},
         {1001, "settings 0 and auto allow WPA2 only", when(wants_wpa2)},
         {1001, "WEP-RADIUS is not offered on model M2840",
          none_of({"WEP-OPEN", "WEP-SHARED", "WPA-PSK", "WPA-RADIUS", "WPA2-PSK", "WPA2-RADIUS",
                   "WPA-AUTO-PSK", "WPA-AUTO-RADIUS"},
                  2)},
         {1002, "an encryption that does not suit the type"}}));
    all.push_back(check<WLAN_check_HNAP_KeyRenewal>(
        "WLAN_check_HNAP_KeyRenewal",
        {{"renewal",
          "whether keys are renewed; with false the other two are not looked at",
          {"true", "false"}},
         {"interval", "seconds, 600 to 7200, in 3 or 4 digits"},
         {"type",
          "a security type; with one of WEP the interval is not looked at",
          {"WEP-OPEN", "WEP-SHARED", "WEP-RADIUS"}}},
        "renewal is false, or the type is one of WEP, or the interval is 600 to 7200 in 3 or 4 digits",
        {{-1, "the interval has not 3 or 4 digits", when([](std::span<const Value> values) {
              const auto size = text_of(values, 1).size();
              return size < 3 || size > 4;
          })},
         {-1, "the interval holds a character that is no digit", outside(CHARSET_DIGITS, 1)},
         {-1, "the interval is not 600 to 7200", when([](std::span<const Value> values) {
              return number_of(values, 1) < 600 || number_of(values, 1) > 7200;
          })}}));
    all.push_back(check<WLAN_check_radius_sec>(
        "WLAN_check_radius_sec", {{"value", "a shared secret, 1 to 80 bytes"}}, "1 to 80 bytes",
        {{-1, "empty", is_empty()}, {-1, "more than 80 bytes", longer_than(80)}}));
}

void add_keys(std::vector<Function>& all)
{
    all.push_back(check<WLAN_check_preshared_key>(
        "WLAN_check_preshared_key", {{"value", "a key, 64 hexadecimal digits"}}, "64 hexadecimal digits",
        {{600, "another length than 64"},
         {803, "the length is right and a character is no hexadecimal digit", outside(CHARSET_HEX)}}));
    all.push_back(check<WLAN_check_preshared_key2>(
        "WLAN_check_preshared_key2",
        {{"psk", "a key, 64 hexadecimal digits; may be empty"},
         {"passphrase", "the pass phrase, never judged; may be empty"}},
        "the psk is 64 hexadecimal digits; a pass phrase beside it is not looked at, one alone is refused",
        {{600, "the psk is not empty and of another length than 64"},
         {803, "the psk has 64 characters and one is no hexadecimal digit", outside(CHARSET_HEX)},
         {801, "a pass phrase without a psk"},
         {402, "both are empty"}}));
    all.push_back(check<WLAN_check_wepkeys>(
        "WLAN_check_wepkeys",
        {blocks("keys",
                "four keys of 10 or 26 hexadecimal digits, each with its terminator in 257 bytes, one "
                "directly behind the other",
                4, 257)
             .writes("a NUL over the first byte of each key that is skipped, also when a later key is "
                     "refused; nothing else")},
        "four keys of 10 or 26 hexadecimal digits and of one length; an empty or unprintable key is emptied "
        "and skipped, and one must remain",
        {{803, "a printable key with a character that is no hexadecimal digit", wep_key_fault(803, 1)},
         {802, "a key of more than 26 digits", wep_key_fault(802, 1)},
         {801, "a key of fewer than 10 digits", wep_key_fault(801, 1)},
         {731, "a key of 11 to 25 digits", wep_key_fault(731, 1)},
         {731, "a key of another length than an earlier one", wep_key_fault(731, 2)},
         {402, "all four keys were skipped: each is empty or holds a byte that is not printable ASCII"}}));
    all.push_back(check<WLAN_check_keys>(
        "WLAN_check_keys",
        {{"key", "a key: 64 hexadecimal digits or 8 to 63 bytes; 10 or 26 bytes for WEP"},
         {"type",
          "a security type",
          {"WEP-OPEN", "WEP-SHARED", "WEP-RADIUS", "WPA-PSK", "WPA-RADIUS", "WPA2-PSK", "WPA2-RADIUS",
           "WPA-AUTO-PSK", "WPA-AUTO-RADIUS"}},
         {"encryption", "an encryption; it counts for WEP only", {"WEP-64", "WEP-128"}}},
        "PSK types: 64 hexadecimal digits or 8 to 63 bytes of 0x20 to 0x7E; WEP types: 10 such bytes with "
        "WEP-64, 26 with WEP-128; WPA RADIUS types: any key",
        {{-1, "no security type",
          none_of({"WEP-OPEN", "WEP-SHARED", "WEP-RADIUS", "WPA-PSK", "WPA-RADIUS", "WPA2-PSK", "WPA2-RADIUS",
                   "WPA-AUTO-PSK", "WPA-AUTO-RADIUS"},
                  1)},
         {-1, "a key that is neither 64 hexadecimal digits nor 8 to 63 bytes of printable ASCII",
          fails(pass_phrase_fault)},
         {803, "a WEP key with a byte that is not printable ASCII", outside(CHARSET_ASCII_PRINTABLE)},
         {1002, "a WEP key whose length does not suit the encryption"}}));
    all.push_back(check<WLAN_check_default_wep_key_index>(
        "WLAN_check_default_wep_key_index", {{"value", "the number of a key, 0 to 3"}},
        "the leading number is from 0 to 3; text without a number is 0",
        {{402, "the number is below 0 or above 3"}}));
}

}  // namespace

std::vector<Function> wlan_checks()
{
    std::vector<Function> all;
    add_security_modes(all);
    add_keys(all);
    add_radio_checks(all);
    return all;
}

}  // namespace ostrel::catalogue
