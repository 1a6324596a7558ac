#include <ostrel/l3forwarding_check.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> forwarding_checks()
{
    return {
        check<L3FORWARDING_check_interface>(
            "L3FORWARDING_check_interface", {{"value", "the name of an interface, 1 to 256 bytes"}},
            "1 to 256 bytes", {{402, "empty", is_empty()}, {402, "more than 256 bytes", longer_than(256)}}),
        check<L3FORWARDING_check_IP_address_and_mask>(
            "L3FORWARDING_check_IP_address_and_mask", {{"value", "an IPv4 address or a mask, 7 to 15 bytes"}},
            "an IPv4 address that does not begin with \"0.0\"",
            {{402, "it begins with \"0.0\"",
              when([](std::span<const Value> values) { return text_of(values, 0).starts_with("0.0"); })},
             {402, "no IPv4 address", fails(ipv4_fault)}}),
        check<L3FORWARDING_check_ForwardingType>(
            "L3FORWARDING_check_ForwardingType",
            {{"value", "a type of route", {"Default", "Network", "Host"}}},
            "Default, Network or Host, in upper or lower case", {{402, "any other value"}}),
        check<L3FORWARDING_check_ForwardingMetric>(
            "L3FORWARDING_check_ForwardingMetric", {{"value", "a metric, -1 or above"}},
            "the leading number is -1 or more; text without one is 0", {{402, "the number is below -1"}}),
        check<L3FORWARDING_check_MTU>("L3FORWARDING_check_MTU", {{"value", "a size in bytes, 1 to 1540"}},
                                      "the leading number is from 1 to 1540",
                                      {{402, "the number is below 1 or above 1540, or there is none"}}),
        check<L3FORWARDING_check_forwarding_policy>(
            "L3FORWARDING_check_forwarding_policy", {{"value", "a number, -1 or above"}},
            "the leading number is -1 or more; text without one is 0", {{402, "the number is below -1"}}),
    };
}

}  // namespace ostrel::catalogue
