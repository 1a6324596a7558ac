#include <ostrel/character_sets.h>
#include <ostrel/port_mapping_check.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> port_mapping_checks()
{
    return {
        check<PORTMAPPING_check_remote_host>("PORTMAPPING_check_remote_host",
                                             {{"value_p", "the remote host; empty stands for every one"}},
                                             "empty or NULL", {{726, "any other value"}}),
        check<PORTMAPPING_check_external_port>(
            "PORTMAPPING_check_external_port", {{"value_p", "a port number, 0 to 65535"}},
            "not empty, and the leading number is from 0 to 65535; text without one is 0",
            {{716, "NULL", is_null()},
             {716, "empty", is_empty()},
             {601, "the number is below 0 or above 65535"}}),
        check<PORTMAPPING_check_port_available>(
            "PORTMAPPING_check_port_available",
            {{"port", "a port number"}, {"protocol", "0 for TCP, 1 for UDP; any other has no rules"}},
            "a port that the gateway does not use itself; protocol 0 is TCP, 1 is UDP, any other is not "
            "checked",
            {{402, "TCP port 80, 161, 443, 1723, 1728, 6667 or 7547",
              when([](std::span<const Value> values) { return number_of(values, 1) == 0; })},
             {402, "UDP port 161 or 5060", when([](std::span<const Value> values) {
                  return number_of(values, 1) == 1 && number_of(values, 0) < 54000;
              })},
             {402, "a UDP port of 54000 to 54999", when([](std::span<const Value> values) {
                  return number_of(values, 1) == 1 && number_of(values, 0) >= 54000;
              })}}),
        check<PORTMAPPING_check_description>(
            "PORTMAPPING_check_description", {{"value_p", "a description, 1 to 32 bytes"}},
            "1 to 32 printable ASCII characters",
            {{402, "empty", is_empty()},
             {402, "more than 32 characters", longer_than(32)},
             {402, "a byte that is not printable ASCII", outside(CHARSET_DESCRIPTION)}}),
        check<PORTMAPPING_check_lease_duration>(
            "PORTMAPPING_check_lease_duration",
            {{"value_p", "a lease in seconds, of which only 0, a permanent one, passes"}},
            "the leading number is 0; text without one is 0", {{725, "the number is not 0"}}),
    };
}

}  // namespace ostrel::catalogue
