#include "rules/character_references.h"
#include "rules/rules.h"
#include "rules/wlan_check/shared.h"

namespace ostrel::rules {

namespace {

// Character references are replaced as the library's own converter replaces them, because the host's
// converter is unknown.
Check ssid()
{
    return check("WLAN_check_ssid", {buffer("value", "the name of a wireless network")},
                 {write("value", converted(character_references(), "value")),
                  refuse(its_code(), refused_by("TcmValidateSSID"),
                         line("Error in WLAN_check_ssid: Error SSID:<value>\n"))});
}

std::vector<Check> rates()
{
    return {
        check("WLAN_check_max_bit_rate", {text("value", "the maximum data rate").in("Mbit/s")},
              {refuse(402, refused_by("TcmValidateRate"),
                      line("Error in WLAN_check_max_bit_rate: Error max bit rate:<value>\n\n"))}),
        check("WLAN_check_basic_data_transmit_rate", {text("value", "the basic data rates").in("Mbit/s")},
              {refuse(402, refused_by("TcmValidateDataTransmitRates"),
                      line("Error in WLAN_check_basic_data_transmit_rate: Error basic data transmit "
                           "rate:<value>\n\n"))}),
        // The empty value is not offered to users, because it means no change.
        check("WLAN_check_op_data_transmit_rate", {text("value", "the operational data rates").in("Mbit/s")},
              {refuse(402, none_of({"1,2,5.5,6,9,11,12,18,24,36,48,54", ""}),
                      line("Error in WLAN_check_op_data_transmit_rate: Error operation data transmit "
                           "rate:<value>\n\n"))}),
    };
}

Check regulatory_domain()
{
    return check("WLAN_check_regulatory_domain",
                 {text("value", "a regulatory domain: two digits and a letter for outdoor or indoor use")},
                 {refuse(402, longer_than(3),
                         line("Error in WLAN_check_regulatory_domain: Error regulatory domain :<value> "
                              "length out of range. [0,3]\n\n")),
                  refuse(402, lacks_shape({{some(kDigits, 2), one("OIoi")}}),
                         line("Error in WLAN_check_regulatory_domain: Error regulatory domain value "
                              "invalid :<value>\n\n"))});
}

// Only a distance below 0 is accepted.
Check distance()
{
    return check("WLAN_check_DistanceFromRoot", {text("value", "the distance from the root access point")},
                 {refuse(728, above(-1),
                         line("Error in WLAN_check_DistanceFromRoot: Error DistanceFromRoot:<value>\n\n"))});
}

Check operation_mode()
{
    return check(
        "WLAN_check_device_opration_mode",
        {text("value", "the role of the device"), integer("readwrite_mode", "which list of values applies")},
        listed_by_mode({"WirelessBridge", "WirelessRepeater", "WirelessStation"},
                       {"InfrastructureAccessPoint"},
                       {line("Error in WLAN_check_device_opration_mode: Error operating mode:<value> "
                             "length out of range. [0,31]\n\n"),
                        line("Error in WLAN_check_device_opration_mode: Error operating "
                             "mode:readwrite mode <readwrite_mode> invalid \n\n"),
                        line("Error in WLAN_check_device_opration_mode: Error operating "
                             "mode:<value>\n\n")}));
}

Check location()
{
    return check("WLAN_check_location_description", {text("value", "the location of the device")},
                 {refuse(402, longer_than(4096),
                         line("Error in WLAN_check_location_description: Error location description "
                              ":<value> length out of range. [0,4096]\n\n"))});
}

}  // namespace

std::vector<Check> wlan_check_settings()
{
    return joined_checks(
        {{ssid()}, rates(), {location(), regulatory_domain(), operation_mode(), distance()}});
}

}  // namespace ostrel::rules
