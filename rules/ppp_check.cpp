#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> ppp_check()
{
    return {
        check("PPP_check_connection_type", {text("value", "the type of the connection")},
              {refuse(402, none_of({"IP_Routed"}),
                      line("Error in PPP_check_connection_type: Error wan connection type:<value>\n\n"))}),
        check("PPP_check_user_name", {text("value", "the user name of an account")},
              {refuse(its_code(), refused_by("TcmValidatePPPUsername", {"value", nowhere()}),
                      line("Error in PPP_check_user_name: Error ppp user name:<value>\n\n"))}),
        check("PPP_check_tonline_password", {text("value", "the password of a T-Online account").secret()},
              {refuse(its_code(), refused_by("ValidateString", {1, 8, kLatin1, "value"}),
                      line("Error in PPP_check_tonline_password: Error ppp T-Online password:<value>\n\n"))}),
        check("PPP_check_non_tonline_password",
              {text("value", "the password of another provider's account").secret()},
              {refuse(its_code(), refused_by("TcmValidatePPPPassword"),
                      line("Error in PPP_check_non_tonline_password: Error none T-Online ppp "
                           "password:<value>\n\n"))}),
        check("PPP_check_pppoe_service_name", {text("value", "the PPPoE service name")},
              {refuse(501, empty(),
                      line("Error in PPP_check_pppoe_service_name: Error ppp service name:<value>\n\n"))}),
        check("PPP_check_connection_trigger", {text("value", "what triggers the connection")},
              {refuse(501, empty(),
                      line("Error in PPP_check_connection_trigger: Error connection trigger:<value>\n\n")),
               refuse(402, none_of({"OnDemand", "AlwaysOn"}),
                      line("Error in PPP_check_connection_trigger: Error connection trigger:<value>\n\n"))}),
        check("PPP_check_idle_disconnect_time", {text("value", "the idle time before disconnection")},
              {refuse(501, empty(),
                      line("Error in PPP_check_idle_disconnect_time: Error disconnect time:<value>\n\n"))}),
        check("PPP_check_route_protocol_rx", {text("value", "the routing protocol to listen to")},
              {refuse(402, none_of({"Off"}),
                      line("Error in PPP_check_route_protocol_rx: Error Rx route protocol:<value>\n\n"))}),
        check("PPP_check_shaping_rate", {text("value", "the traffic-shaping rate, or -1 for none")},
              {refuse(402, below(-1),
                      line("Error in PPP_check_shaping_rate: Error shaping rate:<value>\n\n"))}),
        check("PPP_check_shaping_burst_size", {text("value", "the burst size of shaped traffic")},
              {refuse(402, below(0),
                      line("Error in PPP_check_shaping_burst_size: Error shaping burst size:<value>\n\n"))}),
    };
}

}  // namespace ostrel::rules
