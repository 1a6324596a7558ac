#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

// For a reserved port, the function that looks up the port prints its message before the check prints its
// own.
Step refuse_reserved(Condition condition, std::string_view message)
{
    return refuse(402, std::move(condition),
                  {{line(message), line("Error in PORTMAPPING_check_port_available: Error port mapping "
                                        "external port:<port>\n\n")}});
}

Check port_available()
{
    constexpr std::string_view kAssertion = "value_p != ((void *)0)";
    constexpr std::string_view kReserved = "Error in is_port_reserved: The port:<port> is reserved\n";
    return check(
        "PORTMAPPING_check_port_available",
        {text("port", "a WAN port"), integer("protocol", "0 for TCP, 1 for UDP")},
        {when(equal("protocol", 0),
              {asserts("port", kAssertion),
               refuse_reserved(among("port", {80, 161, 443, 1723, 1728, 6667, 7547}), kReserved)}),
         when(equal("protocol", 1),
              {asserts("port", kAssertion), refuse_reserved(among("port", {161, 5060}), kReserved),
               refuse_reserved(between("port", 54000, 54999),
                               "Error in is_wan_udp_port_available: The udp port:<port> is reserved sip rtp "
                               "ports\n")})});
}

}  // namespace

std::vector<Check> port_mapping_check()
{
    return {
        check("PORTMAPPING_check_remote_host", {text("value_p", "the remote host that may use the mapping")},
              {accept(null(it)),
               refuse(726, not_empty(),
                      line("Error in PORTMAPPING_check_remote_host: The remote host should be empty\n"))}),
        check(
            "PORTMAPPING_check_external_port", {text("value_p", "the port on the WAN")},
            {refuse(
                 716, null(it),
                 line("Error in PORTMAPPING_check_external_port: The remote host should not be wildcard\n")),
             refuse(
                 716, empty(),
                 line("Error in PORTMAPPING_check_external_port: The remote host should not be wildcard\n")),
             refuse(its_code(), refused_by("PARAM_check_port"))}),
        port_available(),
        check("PORTMAPPING_check_description", {text("value_p", "the purpose of the mapping")},
              {refuse(402, refused_by("TcmValidatePortMappingDescription"),
                      line("Error in PORTMAPPING_check_description: Error port mapping "
                           "description:<value_p>\n\n"))}),
        check("PORTMAPPING_check_lease_duration",
              {text("value_p", "the lease time of the mapping, or 0 for a permanent one").in("seconds")},
              {refuse(725, not_among(it, {0}),
                      line("Error in PORTMAPPING_check_lease_duration: The port mapping lease should be "
                           "zero\n"))}),
    };
}

}  // namespace ostrel::rules
