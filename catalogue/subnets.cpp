#include <ostrel/subnets.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> subnets()
{
    return {
        check<isInSameSubnet>(
            "isInSameSubnet", {"reference", "address"},
            "the address begins with the reference's text up to and including its last \".\"",
            {{-1, "the address begins with another text"}}),
        check<TcmValidateAddressRange>(
            "TcmValidateAddressRange", {"startAddress", "endAddress", "lanAddress"},
            "two IPv4 addresses in the LAN's subnet, last numbers from 1 to 254, the start not above the end",
            {{-1,
              "an end is no address or lies in another subnet, a last number is 0 or 255, the start is "
              "above the end, or the LAN address has no \".\""}}),
        check<TcmValidateReservedAddress>(
            "TcmValidateReservedAddress", {"reservedList", "lanAddress"},
            "items separated by \",\", each in the LAN's subnet and none repeated as 701 has it",
            {{-1, "an item in another subnet"},
             {701,
              "an item's text stands again in the rest, and the rest ends or has a \",\" where an equally "
              "long item ends"}}),
        check<TcmValidateIPRouter>("TcmValidateIPRouter", {"address"},
                                   "an IPv4 address that begins with \"192.168.\", last number from 1 to 254",
                                   {{-1, "any other value"}}),
        check<TcmValidateofferDNS>("TcmValidateofferDNS", {"dnsList"},
                                   "one or two IPv4 addresses separated by \",\", with or without blanks",
                                   {{-1, "an item is no address, or there are more than two"}}),
    };
}

}  // namespace ostrel::catalogue
