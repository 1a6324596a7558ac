#include <ostrel/ppp_check.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> ppp_checks()
{
    return {
        check<PPP_check_connection_type>("PPP_check_connection_type", {"value"}, "IP_Routed",
                                         {{402, "any other value"}}),
        check<PPP_check_user_name>("PPP_check_user_name", {"value"}, "a user name (TcmValidatePPPUsername)",
                                   {{801, "the name or its local part is too short"},
                                    {802, "the name or its local part is too long"},
                                    {803, "a byte outside the set"},
                                    {402, "a local part before a realm in none of the forms"}}),
        check<PPP_check_tonline_password>("PPP_check_tonline_password", {"value"},
                                          "1 to 8 printable Latin-1 bytes",
                                          {{801, "empty"},
                                           {802, "more than 8 bytes"},
                                           {803, "a control character or a byte of 0x7F to 0xA0"}}),
        check<PPP_check_non_tonline_password>("PPP_check_non_tonline_password", {"value"},
                                              "1 to 67 printable Latin-1 bytes",
                                              {{801, "empty"},
                                               {802, "more than 67 bytes"},
                                               {803, "a control character or a byte of 0x7F to 0xA0"}}),
        check<PPP_check_pppoe_service_name>("PPP_check_pppoe_service_name", {"value"},
                                            "anything but the empty value", {{501, "empty"}}),
        check<PPP_check_connection_trigger>("PPP_check_connection_trigger", {"value"}, "OnDemand or AlwaysOn",
                                            {{501, "empty"}, {402, "any other value"}}),
        check<PPP_check_idle_disconnect_time>("PPP_check_idle_disconnect_time", {"value"},
                                              "anything but the empty value", {{501, "empty"}}),
        check<PPP_check_route_protocol_rx>("PPP_check_route_protocol_rx", {"value"}, "Off",
                                           {{402, "any other value"}}),
        check<PPP_check_shaping_rate>("PPP_check_shaping_rate", {"value"},
                                      "the leading number is -1 or more; text without one is 0",
                                      {{402, "the number is below -1"}}),
        check<PPP_check_shaping_burst_size>("PPP_check_shaping_burst_size", {"value"},
                                            "the leading number is 0 or more; text without one is 0",
                                            {{402, "the number is below 0"}}),
    };
}

}  // namespace ostrel::catalogue
