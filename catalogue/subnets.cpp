#include <ostrel/subnets.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> subnets()
{
    return {
        check<isInSameSubnet>(
            "isInSameSubnet",
            {{"reference", "the address that gives the subnet, up to its last \".\""},
             {"address", "the text to compare, of any length"}},
            "the address begins with the reference's text up to and including its last \".\"",
            {{-1, "the address begins with another text than the reference up to its last \".\"",
              subnet_fault()}}),
        check<TcmValidateAddressRange>(
            "TcmValidateAddressRange",
            {{"startAddress", "the first address of the pool"},
             {"endAddress", "the last address of the pool"},
             {"lanAddress",
              "the gateway's own address on the LAN; what stands up to its last \".\" is the subnet"}},
            "two IPv4 addresses in the LAN's subnet, last numbers from 1 to 254, the start not above the end",
            {{-1, "no pool of the LAN", range_fault()}}),
        check<TcmValidateReservedAddress>(
            "TcmValidateReservedAddress",
            {{"reservedList",
              "a list of addresses between \",\", of any length; blanks around an item are not part of it"},
             {"lanAddress",
              "the gateway's own address on the LAN; what stands up to its last \".\" is the subnet"}},
            "items separated by \",\", each in the LAN's subnet and none repeated as 701 has it",
            {{-1, "an item in another subnet", reserved_subnet_fault()},
             {701,
              "an item's text stands again in the rest, and the rest ends or has a \",\" where an equally "
              "long item ends",
              reserved_repeat_fault()}}),
        check<TcmValidateIPRouter>("TcmValidateIPRouter", {{"address", "an IPv4 address, 7 to 15 bytes"}},
                                   "an IPv4 address that begins with \"192.168.\", last number from 1 to 254",
                                   {{-1, "no address for the gateway on its LAN", fails(router_fault)}}),
        check<TcmValidateofferDNS>(
            "TcmValidateofferDNS",
            {{"dnsList", "one or two IPv4 addresses between \",\"; blanks around them are not part of them"}},
            "one or two IPv4 addresses separated by \",\", with or without blanks",
            {{-1, "not one or two IPv4 addresses", fails(offered_dns_fault)}}),
    };
}

}  // namespace ostrel::catalogue
