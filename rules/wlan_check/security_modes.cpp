#include "rules/rules.h"
#include "rules/wlan_check/shared.h"

namespace ostrel::rules {

namespace {

std::vector<Check> lists()
{
    return {
        check("WLAN_check_beacon_type", {text("value", "a beacon type")},
              {refuse(402, refused_by("TcmValidateBeaconType"),
                      line("Error in WLAN_check_beacon_type: Error beacon type:<value>\n\n"))}),
        check("WLAN_check_basic_encryption_modes", {text("value", "an encryption mode without WPA")},
              {refuse(402, none_of({"WEPEncryption", "None"}),
                      line("Error in WLAN_check_basic_encryption_modes: Error basic encryption "
                           "modes:<value>\n\n"))}),
        check("WLAN_check_basic_authentication_modes", {text("value", "an authentication mode without WPA")},
              {refuse(402, none_of({"None", "EAPAuthentication"}),
                      line("Error in WLAN_check_basic_authentication_modes: Error basic authentication "
                           "modes:<value>\n\n"))}),
        check("WLAN_check_wpa_encryption_modes", {text("value", "a WPA encryption mode")},
              {refuse(402,
                      none_of({"WEPEncryption", "TKIPEncryption", "WEPandTKIPEncryption", "AESEncryption",
                               "WEPandAESEncryption", "TKIPandAESEncryption", "WEPandTKIPandAESEncryption"}),
                      line("Error in WLAN_check_wpa_encryption_modes: Error wpa encryption "
                           "modes:<value>\n\n"))}),
        check("WLAN_check_wpa_authentication_modes", {text("value", "a WPA authentication mode")},
              {refuse(402, none_of({"PSKAuthentication", "EAPAuthentication"}),
                      line("Error in WLAN_check_wpa_authentication_modes: Error wpa authentication "
                           "modes:<value>\n\n"))}),
        check("WLAN_check_authentication_service_mode",
              {text("value", "the service that authenticates stations")},
              {refuse(402, longer_than(31),
                      line("Error in WLAN_check_authentication_service_mode: Error "
                           "authentication_service_mode:<value> length out of range. [0,31]\n\n")),
               refuse(402, none_of({"none", "LinkAuthentication", "RadiusClient"}),
                      line("Error in WLAN_check_authentication_service_mode: Error "
                           "authentication_service_mode value invalid :<value>\n\n"))}),
    };
}

std::vector<Check> lists_by_mode()
{
    const auto mode = integer("readwrite_mode", "which list of values applies");
    return {
        check("WLAN_check_IEEE11i_encryption_modes", {text("value", "an IEEE 802.11i encryption mode"), mode},
              listed_by_mode({"AESEncryption", "WEPandAESEncryption", "TKIPandAESEncryption",
                              "WEPandTKIPandAESEncryption"},
                             {"WEPEncryption", "TKIPEncryption", "WEPandTKIPEncryption"},
                             {line("Error in WLAN_check_IEEE11i_encryption_modes: Error IEEE11i encryption "
                                   "modes:<value> length out of range. [0,31]\n\n"),
                              line("Error in WLAN_check_IEEE11i_encryption_modes: Error IEEE11i encryption "
                                   "modes:readwrite mode <readwrite_mode> invalid \n\n"),
                              line("Error in WLAN_check_IEEE11i_encryption_modes: Error IEEE11i encryption "
                                   "modes:<value>\n\n")})),
        // This check is about authentication, but the lines that it prints say "encryption".
        check(
            "WLAN_check_IEEE11i_authentication_modes",
            {text("value", "an IEEE 802.11i authentication mode"), mode},
            listed_by_mode({"EAPAuthentication", "EAPandPSKAuthentication"}, {"PSKAuthentication"},
                           {line("Error in WLAN_check_IEEE11i_authentication_modes: Error IEEE11i encryption "
                                 "modes:<value> length out of range. [0,31]\n\n"),
                            line("Error in WLAN_check_IEEE11i_authentication_modes: Error IEEE11i encryption "
                                 "modes:readwrite mode <readwrite_mode> invalid \n\n"),
                            line("Error in WLAN_check_IEEE11i_authentication_modes: Error IEEE11i encryption "
                                 "modes:<value>\n\n")})),
    };
}

// WEP with RADIUS is not allowed on model M2840.
Check security_type()
{
    const Words without_wep_radius = {"WEP-OPEN", "WEP-SHARED",  "WPA-PSK",      "WPA-RADIUS",
                                      "WPA2-PSK", "WPA2-RADIUS", "WPA-AUTO-PSK", "WPA-AUTO-RADIUS"};
    const auto encryption_of = [](Words types, Words encryptions) {
        return when(one_of("type", std::move(types)),
                    {refuse(1002, none_of("encryption", std::move(encryptions)))});
    };
    return check(
        "WLAN_check_HNAP_SecurityType",
        {text("setting1", "the first of two host settings"),
         text("setting2", "the second of two host settings"), text("type", "a security type"),
         text("encryption", "an encryption method")},
        {when(all_of({equal("setting1", literal("0")), equal("setting2", literal("auto"))}),
              {refuse(1001, none_of("type", {"WPA2-PSK", "WPA2-RADIUS"}))},
              {when(equal(model(), literal("M2840")), {refuse(1001, none_of("type", without_wep_radius))},
                    {refuse(1001, none_of("type", kSecurityTypes))})}),
         encryption_of(kWepTypes, {"WEP-64", "WEP-128"}), encryption_of({"WPA-PSK", "WPA-RADIUS"}, {"TKIP"}),
         encryption_of({"WPA2-PSK", "WPA2-RADIUS"}, {"AES"}),
         encryption_of({"WPA-AUTO-PSK", "WPA-AUTO-RADIUS"}, {"TKIPORAES"})});
}

// The number has at most four digits, so it fits in an int.
Check key_renewal()
{
    return check(
        "WLAN_check_HNAP_KeyRenewal",
        {text("renewal", "whether keys are renewed"),
         text("interval", "the interval between renewals").in("seconds"), text("type", "a security type")},
        {accept(one_of("renewal", {"false"})), accept(one_of("type", kWepTypes)),
         refuse(-1, empty("interval")), refuse(-1, outside("interval", kDigits)),
         refuse(-1, longer_than("interval", 4)), refuse(-1, not_(between("interval", 600, 7200)))});
}

Check radius_secret()
{
    return check("WLAN_check_radius_sec", {text("value", "the secret shared with a RADIUS server").secret()},
                 {refuse(-1, empty()), refuse(-1, longer_than(80))});
}

}  // namespace

std::vector<Check> wlan_check_security_modes()
{
    return joined_checks({lists(), lists_by_mode(), {security_type(), key_renewal(), radius_secret()}});
}

}  // namespace ostrel::rules
