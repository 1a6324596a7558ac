#include <ostrel/port_mapping_check.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> port_mapping_checks()
{
    return {
        check<PORTMAPPING_check_remote_host>("PORTMAPPING_check_remote_host", {"value_p"}, "empty or NULL",
                                             {{726, "any other value"}}),
        check<PORTMAPPING_check_external_port>(
            "PORTMAPPING_check_external_port", {"value_p"},
            "not empty, and the leading number is from 0 to 65535; text without one is 0",
            {{716, "empty or NULL"}, {601, "the number is below 0 or above 65535"}}),
        check<PORTMAPPING_check_port_available>(
            "PORTMAPPING_check_port_available", {"port", "protocol"},
            "a port that the gateway does not use itself; protocol 0 is TCP, 1 is UDP, any other is not "
            "checked",
            {{402,
              "TCP port 80, 161, 443, 1723, 1728, 6667 or 7547; UDP port 161, 5060, or 54000 to 54999"}}),
        check<PORTMAPPING_check_description>("PORTMAPPING_check_description", {"value_p"},
                                             "1 to 32 printable ASCII characters",
                                             {{402, "another length or another byte"}}),
        check<PORTMAPPING_check_lease_duration>("PORTMAPPING_check_lease_duration", {"value_p"},
                                                "the leading number is 0; text without one is 0",
                                                {{725, "the number is not 0"}}),
    };
}

}  // namespace ostrel::catalogue
