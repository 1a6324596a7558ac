#include <ostrel/addresses.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> addresses()
{
    return {
        check<TcmValidateIPAddress>("TcmValidateIPAddress", {{"value", "an IPv4 address, 7 to 15 bytes"}},
                                    "an IPv4 address: four decimal numbers of 0 to 255 between three dots, "
                                    "7 to 15 characters",
                                    {{-1, "no IPv4 address", fails(ipv4_fault)}}),
        check<TcmValidateMACaddress>("TcmValidateMACaddress", {{"value", "a MAC address, 17 bytes"}},
                                     "a MAC address: six octets of two hexadecimal digits between five \":\"",
                                     {{-1, "NULL", is_null()}, {-1, "no MAC address", fails(mac_fault)}}),
        check<isValidOrdinaryMACAddress>(
            "isValidOrdinaryMACAddress", {{"value", "a MAC address, 17 bytes"}},
            "a MAC address whose group bit (the lowest of the first octet) is clear",
            {{-1, "NULL", is_null()}, {-1, "no MAC address of one station", fails(station_fault)}}),
    };
}

}  // namespace ostrel::catalogue
