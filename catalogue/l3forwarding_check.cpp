#include <ostrel/l3forwarding_check.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> forwarding_checks()
{
    return {
        check<L3FORWARDING_check_interface>("L3FORWARDING_check_interface", {"value"}, "1 to 256 bytes",
                                            {{402, "empty, or more than 256 bytes"}}),
        check<L3FORWARDING_check_IP_address_and_mask>(
            "L3FORWARDING_check_IP_address_and_mask", {"value"},
            "an IPv4 address that does not begin with \"0.0\"",
            {{402, "it begins with \"0.0\", or it is no IPv4 address"}}),
        check<L3FORWARDING_check_ForwardingType>("L3FORWARDING_check_ForwardingType", {"value"},
                                                 "Default, Network or Host, in upper or lower case",
                                                 {{402, "any other value"}}),
        check<L3FORWARDING_check_ForwardingMetric>("L3FORWARDING_check_ForwardingMetric", {"value"},
                                                   "the leading number is -1 or more; text without one is 0",
                                                   {{402, "the number is below -1"}}),
        check<L3FORWARDING_check_MTU>("L3FORWARDING_check_MTU", {"value"},
                                      "the leading number is from 1 to 1540",
                                      {{402, "the number is below 1 or above 1540, or there is none"}}),
        check<L3FORWARDING_check_forwarding_policy>("L3FORWARDING_check_forwarding_policy", {"value"},
                                                    "the leading number is -1 or more; text without one is 0",
                                                    {{402, "the number is below -1"}}),
    };
}

}  // namespace ostrel::catalogue
