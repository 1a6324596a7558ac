// The security modes of the wireless LAN.
#include <algorithm>

#include "fuzz/model/generic.h"

namespace ostrel::model {

namespace {

using Words = std::vector<std::string>;

const Words kBasicEncryption = {"WEPEncryption", "None"};
const Words kBasicAuthentication = {"None", "EAPAuthentication"};
const Words kStrongEncryption = {"AESEncryption", "WEPandAESEncryption", "TKIPandAESEncryption",
                                 "WEPandTKIPandAESEncryption"};
const Words kWeakEncryption = {"WEPEncryption", "TKIPEncryption", "WEPandTKIPEncryption"};
const Words kSharedKey = {"PSKAuthentication"};

bool one_of(const std::string& value, const Words& words)
{
    return std::ranges::find(words, value) != words.end();
}

Answer keyword(const char* name, const char* what, bool good, const std::string& value)
{
    return good ? silent(0) : rule::refused(402, name, what + (":" + value) + "\n\n");
}

Answer beacon_type(const std::string& value)
{
    return keyword("WLAN_check_beacon_type", "Error beacon type", rule::is_beacon_type(value), value);
}

Answer basic_encryption(const std::string& value)
{
    return keyword("WLAN_check_basic_encryption_modes", "Error basic encryption modes",
                   one_of(value, kBasicEncryption), value);
}

Answer basic_authentication(const std::string& value)
{
    return keyword("WLAN_check_basic_authentication_modes", "Error basic authentication modes",
                   one_of(value, kBasicAuthentication), value);
}

Answer wpa_encryption(const std::string& value)
{
    return keyword("WLAN_check_wpa_encryption_modes", "Error wpa encryption modes",
                   one_of(value, kStrongEncryption) || one_of(value, kWeakEncryption), value);
}

Answer wpa_authentication(const std::string& value)
{
    return keyword("WLAN_check_wpa_authentication_modes", "Error wpa authentication modes",
                   one_of(value, kSharedKey) || value == "EAPAuthentication", value);
}

// Both checks of 802.11i speak of encryption modes.
Answer ieee11i(const char* name, Arguments arguments, const Words& mode0, const Words& mode1)
{
    if (is_null(arguments[0])) return undefined();
    const std::string& value = text(arguments[0]);
    const int mode = number(arguments[1]);
    if (value.size() > 31) {
        return rule::refused(402, name,
                             "Error IEEE11i encryption modes:" + value + " length out of range. [0,31]\n\n");
    }
    if (mode != 0 && mode != 1) {
        return rule::refused(402, name,
                             format("Error IEEE11i encryption modes:readwrite mode %d invalid \n\n", mode));
    }
    return keyword(name, "Error IEEE11i encryption modes", one_of(value, mode == 0 ? mode0 : mode1), value);
}

Answer ieee11i_encryption(Arguments arguments)
{
    return ieee11i("WLAN_check_IEEE11i_encryption_modes", arguments, kStrongEncryption, kWeakEncryption);
}

Answer ieee11i_authentication(Arguments arguments)
{
    return ieee11i("WLAN_check_IEEE11i_authentication_modes", arguments,
                   {"EAPAuthentication", "EAPandPSKAuthentication"}, kSharedKey);
}

Answer service_mode(const std::string& value)
{
    const char* const name = "WLAN_check_authentication_service_mode";
    if (value.size() > 31) {
        return rule::refused(
            402, name, "Error authentication_service_mode:" + value + " length out of range. [0,31]\n\n");
    }
    if (one_of(value, {"none", "LinkAuthentication", "RadiusClient"})) return silent(0);
    return rule::refused(402, name, "Error authentication_service_mode value invalid :" + value + "\n\n");
}

bool is_wep(const std::string& type) { return one_of(type, {"WEP-SHARED", "WEP-OPEN", "WEP-RADIUS"}); }

int hnap_security(const std::string& setting1, const std::string& setting2, const std::string& type,
                  const std::string& encryption)
{
    const auto suits = [&](const Words& encryptions) { return one_of(encryption, encryptions) ? 0 : 1002; };
    const bool is_wpa2 = one_of(type, {"WPA2-PSK", "WPA2-RADIUS"});
    if (setting1 == "0" && setting2 == "auto" && !is_wpa2) return 1001;
    if (is_wpa2) return suits({"AES"});
    if (type == "WEP-RADIUS" && std::string(OSTREL_MODEL) == "M2840") return 1001;
    if (is_wep(type)) return suits({"WEP-64", "WEP-128"});
    if (one_of(type, {"WPA-PSK", "WPA-RADIUS"})) return suits({"TKIP"});
    if (one_of(type, {"WPA-AUTO-PSK", "WPA-AUTO-RADIUS"})) return suits({"TKIPORAES"});
    return 1001;
}

Answer hnap_security_type(Arguments arguments)
{
    if (std::ranges::any_of(arguments, is_null)) return undefined();
    return silent(
        hnap_security(text(arguments[0]), text(arguments[1]), text(arguments[2]), text(arguments[3])));
}

Answer key_renewal(Arguments arguments)
{
    if (std::ranges::any_of(arguments, is_null)) return undefined();
    if (text(arguments[0]) == "false" || is_wep(text(arguments[2]))) return silent(0);
    const std::string& interval = text(arguments[1]);
    if (rule::length_and_set(3, 4, rule::kDigits, interval) != 0) return silent(-1);
    const int seconds = std::stoi(interval);
    return silent(seconds >= 600 && seconds <= 7200 ? 0 : -1);
}

Answer radius_secret(const std::string& value)
{
    return silent(!value.empty() && value.size() <= 80 ? 0 : -1);
}

}  // namespace

void add_wireless_modes(Models& models)
{
    models["WLAN_check_beacon_type"] = on_text<beacon_type>;
    models["WLAN_check_basic_encryption_modes"] = on_text<basic_encryption>;
    models["WLAN_check_basic_authentication_modes"] = on_text<basic_authentication>;
    models["WLAN_check_wpa_encryption_modes"] = on_text<wpa_encryption>;
    models["WLAN_check_wpa_authentication_modes"] = on_text<wpa_authentication>;
    models["WLAN_check_IEEE11i_encryption_modes"] = ieee11i_encryption;
    models["WLAN_check_IEEE11i_authentication_modes"] = ieee11i_authentication;
    models["WLAN_check_authentication_service_mode"] = on_text<service_mode>;
    models["WLAN_check_HNAP_SecurityType"] = hnap_security_type;
    models["WLAN_check_HNAP_KeyRenewal"] = key_renewal;
    models["WLAN_check_radius_sec"] = on_text<radius_secret>;
}

}  // namespace ostrel::model
