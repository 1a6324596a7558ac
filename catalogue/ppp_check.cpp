#include <ostrel/character_sets.h>
#include <ostrel/ppp_check.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> ppp_checks()
{
    return {
        check<PPP_check_connection_type>("PPP_check_connection_type",
                                         {{"value", "a connection type", {"IP_Routed"}}}, "IP_Routed",
                                         {{402, "any other value"}}),
        check<PPP_check_user_name>(
            "PPP_check_user_name",
            {{"value", "a user name, 1 to 131 bytes; 18 to 30 or 16 to 17 before a realm"}},
            "a user name (TcmValidatePPPUsername)",
            {{801, "the name or its part before a realm is too short", user_name_fault(801)},
             {802, "the name or its part before a realm is too long", user_name_fault(802)},
             {803, "a byte outside the set; before a realm only digits and \"#\" are allowed",
              user_name_fault(803)},
             {402, "a part of digits and \"#\" before a realm in none of the forms", user_name_fault(402)}}),
        check<PPP_check_tonline_password>(
            "PPP_check_tonline_password", {{"value", "a password, 1 to 8 bytes"}},
            "1 to 8 printable Latin-1 bytes",
            {{801, "empty"},
             {802, "more than 8 bytes"},
             {803, "a control character or a byte of 0x7F to 0xA0", outside(CHARSET_LATIN1_PRINTABLE)}}),
        check<PPP_check_non_tonline_password>(
            "PPP_check_non_tonline_password", {{"value", "a password, 1 to 67 bytes"}},
            "1 to 67 printable Latin-1 bytes",
            {{801, "empty"},
             {802, "more than 67 bytes"},
             {803, "a control character or a byte of 0x7F to 0xA0", outside(CHARSET_LATIN1_PRINTABLE)}}),
        check<PPP_check_pppoe_service_name>("PPP_check_pppoe_service_name",
                                            {{"value", "a service name, 1 byte or more"}},
                                            "anything but the empty value", {{501, "empty"}}),
        check<PPP_check_connection_trigger>(
            "PPP_check_connection_trigger", {{"value", "a trigger", {"OnDemand", "AlwaysOn"}}},
            "OnDemand or AlwaysOn", {{501, "empty"}, {402, "any other value"}}),
        check<PPP_check_idle_disconnect_time>(
            "PPP_check_idle_disconnect_time",
            {{"value", "a time, 1 byte or more; its unit and form are the host's affair"}},
            "anything but the empty value", {{501, "empty"}}),
        check<PPP_check_route_protocol_rx>("PPP_check_route_protocol_rx",
                                           {{"value", "a routing protocol", {"Off"}}}, "Off",
                                           {{402, "any other value"}}),
        check<PPP_check_shaping_rate>(
            "PPP_check_shaping_rate", {{"value", "a rate, -1 or above; its unit is the host's affair"}},
            "the leading number is -1 or more; text without one is 0", {{402, "the number is below -1"}}),
        check<PPP_check_shaping_burst_size>(
            "PPP_check_shaping_burst_size", {{"value", "a size, 0 or above; its unit is the host's affair"}},
            "the leading number is 0 or more; text without one is 0", {{402, "the number is below 0"}}),
    };
}

}  // namespace ostrel::catalogue
