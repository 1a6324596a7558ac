#include <ostrel/character_sets.h>
#include <ostrel/parameter_check.h>

#include "catalogue/entry.h"

namespace ostrel::catalogue {

std::vector<Function> parameter_checks()
{
    return {
        check<Param_check_string_len>(
            "Param_check_string_len",
            {{"value_p", "the value, min_len to max_len bytes"},
             {"min_len", "the least length in bytes, inclusive; 0 or below lets the empty value pass"},
             {"max_len", "the greatest length in bytes, inclusive"}},
            "min_len to max_len bytes (signed limits)",
            {{801, "shorter than min_len"}, {802, "not too short, and longer than max_len"}}),
        check<PARAM_check_port>("PARAM_check_port", {{"value_p", "a port number, 0 to 65535"}},
                                "the leading number is from 0 to 65535; text without a number is 0",
                                {{601, "the number is below 0 or above 65535"}}),
        check<PARAM_check_ip_addr>("PARAM_check_ip_addr", {{"value_p", "an IPv4 address, 7 to 15 bytes"}},
                                   "an IPv4 address (TcmValidateIPAddress)",
                                   {{402, "no IPv4 address", fails(ipv4_fault)}}),
        check<PARAM_check_Ordinary_MACAddress>(
            "PARAM_check_Ordinary_MACAddress", {{"value_p", "a MAC address, 17 bytes"}},
            "the MAC address of one station (isValidOrdinaryMACAddress)",
            {{402, "NULL", is_null()}, {402, "no MAC address of one station", fails(station_fault)}}),
        check<PARAM_check_MACAddress>("PARAM_check_MACAddress", {{"value_p", "a MAC address, 17 bytes"}},
                                      "a MAC address (TcmValidateMACaddress)",
                                      {{402, "NULL", is_null()}, {402, "no MAC address", fails(mac_fault)}}),
        check<PARAM_check_transport_protocol>(
            "PARAM_check_transport_protocol", {{"value_p", "a protocol", {"TCP", "UDP"}}},
            "TCP or UDP, in upper or lower case", {{-1, "any other value"}}),
        number<PARAM_get_protocol_from_name>("PARAM_get_protocol_from_name",
                                             {{"value_p", "a protocol", {"TCP", "UDP"}}},
                                             "0 for TCP, 1 for UDP (upper case only), 2 for anything else"),
        check<PARAM_check_hexa_string>(
            "PARAM_check_hexa_string", {{"value_p", "hexadecimal digits, any number of them"}},
            "hexadecimal digits only; the empty value is valid",
            {{-1, "a character that is no hexadecimal digit", outside(CHARSET_HEX)}}),
        check<PARAM_check_printable_ascii_string>(
            "PARAM_check_printable_ascii_string", {{"value_p", "the text, 1 byte or more"}},
            "one or more bytes, each of 0x20 to 0x7E",
            {{-1, "NULL", is_null()},
             {-1, "empty", is_empty()},
             {-1, "a byte that is not printable ASCII", outside(CHARSET_ASCII_PRINTABLE)}}),
        check<PARAM_check_provisioning_code>("PARAM_check_provisioning_code",
                                             {{"value_p", "a provisioning code, 15 bytes"}},
                                             "a provisioning code (TcmValidateProvisioningCode)",
                                             {{402, "no provisioning code", fails(provisioning_fault)}}),
        check<PARAM_check_ui2_value>(
            "PARAM_check_ui2_value", {{"value_p", "a number; only the empty value is ever accepted"}},
            "the empty value; does not return for a value that begins with a digit",
            {{402, "the first character is no digit", begins_outside(CHARSET_DIGITS)}}),
        check<PARAM_check_ui4_value>(
            "PARAM_check_ui4_value", {{"value_p", "a number; only the empty value is ever accepted"}},
            "the empty value; does not return for a value that begins with a digit",
            {{402, "the first character is no digit", begins_outside(CHARSET_DIGITS)}}),
        check<PARAM_check_bool_value>("PARAM_check_bool_value", {{"value_p", "a truth value", {"0", "1"}}},
                                      "0 or 1", {{402, "any other value"}}),
        check<PARAM_check_bool_value_use_str>("PARAM_check_bool_value_use_str",
                                              {{"value_p", "a truth value", {"true", "false"}}},
                                              "true or false", {{402, "any other value"}}),
        check<PARAM_check_number>(
            "PARAM_check_number",
            {{"value_p", "decimal digits, min_len to max_len of them"},
             {"min_len", "the least length in bytes, inclusive; 0 or below lets the empty value pass"},
             {"max_len", "the greatest length in bytes, inclusive"}},
            "min_len to max_len decimal digits; the limits are lengths",
            {{801, "fewer than min_len characters"},
             {802, "more than max_len characters"},
             {803, "the length is right and a character is no digit", outside(CHARSET_DIGITS)}}),
        check<PARAM_check_num_range>("PARAM_check_num_range",
                                     {{"value_p", "the number, min to max, in decimal digits"},
                                      {"min", "the least number, inclusive"},
                                      {"max", "the greatest number, inclusive"}},
                                     "decimal digits, whose number is from min to max; the empty value is 0",
                                     {{803, "a character that is no digit", outside(CHARSET_DIGITS)},
                                      {601, "the number is below min or above max"}}),
        check<PARAM_check_password>(
            "PARAM_check_password",
            {{"value_p", "a password, min_len to max_len bytes"},
             {"min_len", "the least length in bytes, inclusive; 0 or below lets the empty value pass"},
             {"max_len", "the greatest length in bytes, inclusive"}},
            "min_len to max_len letters and digits",
            {{801, "fewer than min_len characters"},
             {802, "more than max_len characters"},
             {803, "the length is right and a character is neither letter nor digit",
              outside(CHARSET_ALNUM)}}),
        check<PARAM_check_string_len>(
            "PARAM_check_string_len",
            {{"value_p", "the value, min_len to max_len bytes"},
             {"min_len", "the least length in bytes, inclusive, without a sign"},
             {"max_len", "the greatest length in bytes, inclusive, without a sign"}},
            "min_len to max_len bytes (unsigned limits)",
            {{-1, "shorter than min_len", when([](std::span<const Value> values) {
                  return text_of(values, 0).size() < static_cast<unsigned>(number_of(values, 1));
              })},
             {-1, "not too short, and longer than max_len", when([](std::span<const Value> values) {
                  return text_of(values, 0).size() > static_cast<unsigned>(number_of(values, 2));
              })}}),
        check<PARAM_check_string_prefix>(
            "PARAM_check_string_prefix",
            {{"value_p", "the value, of any length"},
             {"first_chars", "the bytes that the value may begin with, as one text"}},
            "the first byte is one of first_chars; the empty value is valid",
            {{-1, "the first byte is not one of first_chars",
              [](std::span<const Value> values) {
                  return outside_of(text_of(values, 0).substr(0, 1), text_of(values, 1));
              }}}),
        check<PARAM_check_dl_test_bufsize>(
            "PARAM_check_dl_test_bufsize", {{"value_p", "a size in bytes, 1 to 1048576"}},
            "decimal digits, whose number is from 1 to 1048576",
            {{601, "NULL", is_null()},
             {601, "empty", is_empty()},
             {601, "a character that is no digit", outside(CHARSET_DIGITS)},
             {601, "a number that overflows to one below 0",
              when([](std::span<const Value> values) { return number_of(values, 0) < 0; })},
             {600, "the number is 0"},
             {901, "the number is above 1048576"}}),
    };
}

}  // namespace ostrel::catalogue
