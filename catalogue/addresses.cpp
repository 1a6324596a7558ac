#include <ostrel/addresses.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> addresses()
{
    return {
        check<TcmValidateIPAddress>("TcmValidateIPAddress", {"value"},
                                    "an IPv4 address: four decimal numbers of 0 to 255 between three dots, "
                                    "7 to 15 characters",
                                    {{-1, "any other value"}}),
        check<TcmValidateMACaddress>("TcmValidateMACaddress", {"value"},
                                     "a MAC address: six octets of two hexadecimal digits between five \":\"",
                                     {{-1, "any other value, NULL included"}}),
        check<isValidOrdinaryMACAddress>(
            "isValidOrdinaryMACAddress", {"value"},
            "a MAC address whose group bit (the lowest of the first octet) is clear",
            {{-1, "any other value, NULL included"}}),
    };
}

}  // namespace ostrel::catalogue
