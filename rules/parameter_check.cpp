#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

constexpr std::string_view kAssertion = "value_p != ((void *)0)";

std::vector<Check> lengths()
{
    return {
        check("Param_check_string_len",
              {text("value_p", "a string").asserts("((void *)0) != value_p"),
               integer("min_len", "the minimum length").in("bytes"),
               integer("max_len", "the maximum length").in("bytes")},
              {refuse(801, shorter_than("min_len"),
                      line("Error in Param_check_string_len: The length of string:<value_p> shoud not be "
                           "less than <min_len>\n")),
               refuse(802, longer_than("max_len"),
                      line("Error in Param_check_string_len: The length of string:<value_p> shoud not be "
                           "more than <max_len>\n"))}),
        check("PARAM_check_number",
              {text("value_p", "a string of digits"), integer("min_len", "the minimum length").in("bytes"),
               integer("max_len", "the maximum length").in("bytes")},
              {refuse(its_code(), refused_by("ValidateString", {"min_len", "max_len", kDigits, "value_p"}))}),
        check("PARAM_check_num_range",
              {text("value_p", "a number"), integer("min", "the minimum"), integer("max", "the maximum")},
              {refuse(its_code(), refused_by("ValidateNum", {"min", "max", kDigits, "value_p"}))}),
        check("PARAM_check_password",
              {text("value_p", "a password").secret(), integer("min_len", "the minimum length").in("bytes"),
               integer("max_len", "the maximum length").in("bytes")},
              {refuse(its_code(), refused_by("ValidateString", {"min_len", "max_len", kAlnum, "value_p"}))}),
        check("PARAM_check_string_len",
              {text("value_p", "a string"), natural("min_len", "the minimum length").in("bytes"),
               natural("max_len", "the maximum length").in("bytes")},
              {refuse(-1, shorter_than("min_len")), refuse(-1, longer_than("max_len"))}),
        check(
            "PARAM_check_string_prefix",
            {text("value_p", "a string").asserts(kAssertion), text("first_chars", "the allowed first bytes")},
            {refuse(-1, outside(slice("value_p", 0, 1), "first_chars"))}),
    };
}

std::vector<Check> addresses_and_words()
{
    return {
        check("PARAM_check_ip_addr", {text("value_p", "an IPv4 address")},
              {refuse(402, refused_by("TcmValidateIPAddress"))}),
        check("PARAM_check_Ordinary_MACAddress", {text("value_p", "the MAC address of one station")},
              {refuse(402, refused_by("isValidOrdinaryMACAddress"))}),
        check("PARAM_check_MACAddress", {text("value_p", "a MAC address")},
              {refuse(402, refused_by("TcmValidateMACaddress"))}),
        check("PARAM_check_transport_protocol", {text("value_p", "a transport protocol")},
              {refuse(-1, ignoring_case(none_of({"TCP", "UDP"})),
                      line("Error in PARAM_check_transport_protocol: The transport protocol:<value_p> is "
                           "error\n"))}),
        number("PARAM_get_protocol_from_name", {text("value_p", "a transport protocol")},
               {answer(0, one_of({"TCP"})), answer(1, one_of({"UDP"})), answer(2)}),
        check("PARAM_check_hexa_string", {text("value_p", "hexadecimal digits").asserts(kAssertion)},
              {refuse(-1, outside(kHex))}),
        check("PARAM_check_printable_ascii_string", {text("value_p", "a printable string")},
              {refuse(-1, null(it)), refuse(-1, empty()), refuse(-1, outside(kPrintable))}),
        check("PARAM_check_provisioning_code", {text("value_p", "a provisioning code")},
              {refuse(402, refused_by("TcmValidateProvisioningCode"))}),
        check("PARAM_check_bool_value", {text("value_p", "a Boolean value").asserts(kAssertion)},
              {refuse(402, none_of({"0", "1"}),
                      line("Error in PARAM_check_bool_value: The value <value_p> out of range[0,1]\n"))}),
        check("PARAM_check_bool_value_use_str", {text("value_p", "a Boolean value").asserts(kAssertion)},
              {refuse(402, none_of({"true", "false"}),
                      line("Error in PARAM_check_bool_value_use_str: The value <value_p> out of range[true, "
                           "false]\n"))}),
    };
}

// An empty value is accepted. If a value begins with a digit, the call does not return.
std::vector<Step> unsigned_integer(std::string_view message)
{
    return {accept(empty()), never_returns(not_(outside(slice(it, 0, 1), kDigits))),
            refuse(402, outside(slice(it, 0, 1), kDigits), line(message))};
}

std::vector<Check> numbers()
{
    return {
        check("PARAM_check_port", {text("value_p", "a port number").asserts(kAssertion)},
              {refuse(601, below(0), line("Error in PARAM_check_port: The port shoud be between 0~65535\n")),
               refuse(601, above(65535),
                      line("Error in PARAM_check_port: The port shoud be between 0~65535\n"))}),
        check("PARAM_check_ui2_value", {text("value_p", "a two-byte number").asserts(kAssertion)},
              unsigned_integer("Error in PARAM_check_ui2_value: The value <value_p> is invalid\n")),
        check("PARAM_check_ui4_value", {text("value_p", "a four-byte number").asserts(kAssertion)},
              unsigned_integer("Error in PARAM_check_ui4_value: The value <value_p> is invalid\n")),
        check("PARAM_check_dl_test_bufsize",
              {text("value_p", "the buffer size for download tests").in("bytes")},
              {refuse(601, null(it)), refuse(601, empty()),
               refuse(601, outside(kDigits),
                      line("Error in PARAM_check_dl_test_bufsize: The value <value_p> is invalid\n")),
               refuse(601, below(0)), refuse(600, below(1)),
               refuse(901, above(1048576),
                      line("Error in PARAM_check_dl_test_bufsize: The value <value_p> should be between "
                           "[1,1048576)\n"))}),
    };
}

}  // namespace

std::vector<Check> parameter_check() { return joined_checks({lengths(), addresses_and_words(), numbers()}); }

}  // namespace ostrel::rules
