#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

// Only the first three bytes of "0.0.0.0" are compared, so "0.0.1.0" is refused too.
Check destination()
{
    const Effects printed = line(
        "Error in L3FORWARDING_check_IP_address_and_mask: Invalid destination IP address or subnet "
        "mask:<value>\n");
    return check("L3FORWARDING_check_IP_address_and_mask",
                 {text("value", "the destination's IPv4 address, or its subnet mask")},
                 {refuse(402, begins_with({"0.0"}), printed),
                  refuse(402, refused_by("PARAM_check_ip_addr"), printed)});
}

}  // namespace

std::vector<Check> l3forwarding_check()
{
    return {
        check(
            "L3FORWARDING_check_interface", {text("value", "the outgoing interface")},
            {refuse(402, empty(), line("Error in L3FORWARDING_check_interface: Invalid interface value\n\n")),
             refuse(402, longer_than(256),
                    line("Error in L3FORWARDING_check_interface: Invalid interface value\n\n"))}),
        destination(),
        check("L3FORWARDING_check_ForwardingType", {text("value", "the type of destination")},
              {refuse(402, ignoring_case(none_of({"Default", "Network", "Host"})),
                      line("Error in L3FORWARDING_check_ForwardingType: Invalid type:<value>\n"))}),
        check("L3FORWARDING_check_ForwardingMetric", {text("value", "the metric of the route")},
              {refuse(402, below(-1),
                      line("Error in L3FORWARDING_check_ForwardingMetric: Invalid metric:<value>, RANGE "
                           ">=-1\n"))}),
        check("L3FORWARDING_check_MTU", {text("value", "the maximum packet size").in("bytes")},
              {refuse(402, below(1),
                      line("Error in L3FORWARDING_check_MTU: Invalid MTU:<value>, RANGE[1, 1540]\n")),
               refuse(402, above(1540),
                      line("Error in L3FORWARDING_check_MTU: Invalid MTU:<value>, RANGE[1, 1540]\n"))}),
        check("L3FORWARDING_check_forwarding_policy", {text("value", "the forwarding policy")},
              {refuse(402, below(-1),
                      line("Error in L3FORWARDING_check_forwarding_policy: Invalid forwarding "
                           "policy:<value>, RANGE >= -1\n"))}),
    };
}

}  // namespace ostrel::rules
