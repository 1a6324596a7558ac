#include <ostrel/parameter_check.h>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

std::vector<Function> parameter_checks()
{
    return {
        check<Param_check_string_len>(
            "Param_check_string_len", {"value_p", "min_len", "max_len"},
            "min_len to max_len bytes (signed limits)",
            {{801, "shorter than min_len"}, {802, "not too short, and longer than max_len"}}),
        check<PARAM_check_port>("PARAM_check_port", {"value_p"},
                                "the leading number is from 0 to 65535; text without a number is 0",
                                {{601, "the number is below 0 or above 65535"}}),
        check<PARAM_check_ip_addr>("PARAM_check_ip_addr", {"value_p"},
                                   "an IPv4 address (TcmValidateIPAddress)", {{402, "any other value"}}),
        check<PARAM_check_Ordinary_MACAddress>("PARAM_check_Ordinary_MACAddress", {"value_p"},
                                               "the MAC address of one station (isValidOrdinaryMACAddress)",
                                               {{402, "any other value, NULL included"}}),
        check<PARAM_check_MACAddress>("PARAM_check_MACAddress", {"value_p"},
                                      "a MAC address (TcmValidateMACaddress)",
                                      {{402, "any other value, NULL included"}}),
        check<PARAM_check_transport_protocol>("PARAM_check_transport_protocol", {"value_p"},
                                              "TCP or UDP, in upper or lower case",
                                              {{-1, "any other value"}}),
        number<PARAM_get_protocol_from_name>("PARAM_get_protocol_from_name", {"value_p"},
                                             "0 for TCP, 1 for UDP (upper case only), 2 for anything else"),
        check<PARAM_check_hexa_string>("PARAM_check_hexa_string", {"value_p"},
                                       "hexadecimal digits only; the empty value is valid",
                                       {{-1, "another character"}}),
        check<PARAM_check_printable_ascii_string>("PARAM_check_printable_ascii_string", {"value_p"},
                                                  "one or more bytes, each of 0x20 to 0x7E",
                                                  {{-1, "empty, NULL, or another byte"}}),
        check<PARAM_check_provisioning_code>("PARAM_check_provisioning_code", {"value_p"},
                                             "a provisioning code (TcmValidateProvisioningCode)",
                                             {{402, "any other value"}}),
        check<PARAM_check_ui2_value>("PARAM_check_ui2_value", {"value_p"},
                                     "the empty value; does not return for a value that begins with a digit",
                                     {{402, "the first character is no digit"}}),
        check<PARAM_check_ui4_value>("PARAM_check_ui4_value", {"value_p"},
                                     "the empty value; does not return for a value that begins with a digit",
                                     {{402, "the first character is no digit"}}),
        check<PARAM_check_bool_value>("PARAM_check_bool_value", {"value_p"}, "0 or 1",
                                      {{402, "any other value"}}),
        check<PARAM_check_bool_value_use_str>("PARAM_check_bool_value_use_str", {"value_p"}, "true or false",
                                              {{402, "any other value"}}),
        check<PARAM_check_number>("PARAM_check_number", {"value_p", "min_len", "max_len"},
                                  "min_len to max_len decimal digits; the limits are lengths",
                                  {{801, "fewer than min_len characters"},
                                   {802, "more than max_len characters"},
                                   {803, "the length is right and a character is no digit"}}),
        check<PARAM_check_num_range>(
            "PARAM_check_num_range", {"value_p", "min", "max"},
            "decimal digits, whose number is from min to max; the empty value is 0",
            {{803, "a character that is no digit"}, {601, "the number is below min or above max"}}),
        check<PARAM_check_password>(
            "PARAM_check_password", {"value_p", "min_len", "max_len"},
            "min_len to max_len letters and digits",
            {{801, "fewer than min_len characters"},
             {802, "more than max_len characters"},
             {803, "the length is right and a character is neither letter nor digit"}}),
        check<PARAM_check_string_len>("PARAM_check_string_len", {"value_p", "min_len", "max_len"},
                                      "min_len to max_len bytes (unsigned limits)",
                                      {{-1, "any other length"}}),
        check<PARAM_check_string_prefix>("PARAM_check_string_prefix", {"value_p", "first_chars"},
                                         "the first byte is one of first_chars; the empty value is valid",
                                         {{-1, "another first byte"}}),
        check<PARAM_check_dl_test_bufsize>(
            "PARAM_check_dl_test_bufsize", {"value_p"}, "decimal digits, whose number is from 1 to 1048576",
            {{601, "empty, NULL, a character that is no digit, or an overflow"},
             {600, "the number is 0"},
             {901, "the number is above 1048576"}}),
    };
}

}  // namespace ostrel::catalogue
