// The generic parameter checks.
#include "fuzz/model/generic.h"

namespace ostrel::model {

namespace {

Answer length_reported(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    const std::string& value = text(arguments[0]);
    const int length = static_cast<int>(value.size());
    const auto report = [&](int code, const char* word, int limit) {
        return rule::refused(code, "Param_check_string_len",
                             "The length of string:" + value + " shoud not be " + word + " than " +
                                 std::to_string(limit) + "\n");
    };
    if (length < number(arguments[1])) return report(801, "less", number(arguments[1]));
    if (length > number(arguments[2])) return report(802, "more", number(arguments[2]));
    return silent(0);
}

Answer length_silent(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    const auto length = static_cast<long long>(text(arguments[0]).size());
    const long long min = std::get<long long>(arguments[1]);
    const long long max = std::get<long long>(arguments[2]);
    return silent(length >= min && length <= max ? 0 : -1);
}

Answer port(const std::string& value)
{
    const Number read = read_number(value);
    if (read.undefined) return undefined();
    if (read.value >= 0 && read.value <= 65535) return silent(0);
    return rule::refused(601, "PARAM_check_port", "The port shoud be between 0~65535\n");
}

Answer ip_address(const std::string& value) { return silent(rule::is_address(value) ? 0 : 402); }

// What a primitive prints stays; only its code changes.
Answer as_402(Answer answer)
{
    if (answer.code != 0) answer.code = 402;
    return answer;
}

Answer transport_protocol(const std::string& value)
{
    if (rule::equal_ignoring_case(value, "TCP") || rule::equal_ignoring_case(value, "UDP")) return silent(0);
    return rule::refused(-1, "PARAM_check_transport_protocol",
                         "The transport protocol:" + value + " is error\n");
}

Answer protocol_number(const std::string& value)
{
    if (value == "TCP") return silent(0);
    return silent(value == "UDP" ? 1 : 2);
}

Answer hexadecimal(const std::string& value) { return silent(rule::is_hexadecimal(value) ? 0 : -1); }

Answer printable(Arguments arguments)
{
    return silent(!is_null(arguments[0]) && rule::is_printable(text(arguments[0])) ? 0 : -1);
}

Answer provisioning_code(const std::string& value) { return as_402(rule::provisioning_code(value)); }

// A value that begins with a digit never comes back.
Answer unsigned_integer(const char* name, const std::string& value)
{
    if (value.empty()) return silent(0);
    if (rule::kDigits.find(value[0]) != std::string::npos) return undefined();
    return rule::refused(402, name, "The value " + value + " is invalid\n");
}

Answer two_bytes(const std::string& value) { return unsigned_integer("PARAM_check_ui2_value", value); }
Answer four_bytes(const std::string& value) { return unsigned_integer("PARAM_check_ui4_value", value); }

Answer bool_digit(const std::string& value)
{
    if (value == "0" || value == "1") return silent(0);
    return rule::refused(402, "PARAM_check_bool_value", "The value " + value + " out of range[0,1]\n");
}

Answer bool_word(const std::string& value)
{
    if (value == "true" || value == "false") return silent(0);
    return rule::refused(402, "PARAM_check_bool_value_use_str",
                         "The value " + value + " out of range[true, false]\n");
}

template <const std::string& Set>
Answer length_of_set(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    return silent(rule::length_and_set(number(arguments[1]), number(arguments[2]), Set, text(arguments[0])));
}

Answer number_range(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    const std::string& value = text(arguments[0]);
    if (value.find_first_not_of(rule::kDigits) != std::string::npos) return silent(803);
    const Number read = read_number(value);
    if (read.undefined) return undefined();
    return silent(read.value < number(arguments[1]) || read.value > number(arguments[2]) ? 601 : 0);
}

Answer first_byte(const std::string& value, const std::string& first_chars)
{
    return silent(value.empty() || first_chars.find(value[0]) != std::string::npos ? 0 : -1);
}

Answer buffer_size(Arguments arguments)
{
    const char* const name = "PARAM_check_dl_test_bufsize";
    if (is_null(arguments[0]) || text(arguments[0]).empty()) return silent(601);
    const std::string& value = text(arguments[0]);
    if (value.find_first_not_of(rule::kDigits) != std::string::npos) {
        return rule::refused(601, name, "The value " + value + " is invalid\n");
    }
    const Number read = read_number(value);
    if (read.undefined) return undefined();
    if (read.value == 0) return silent(600);
    if (read.value <= 1048576) return silent(0);
    return rule::refused(901, name, "The value " + value + " should be between [1,1048576)\n");
}

}  // namespace

void add_parameters(Models& models)
{
    models["Param_check_string_len"] = length_reported;
    models["PARAM_check_port"] = on_text<port>;
    models["PARAM_check_ip_addr"] = on_text<ip_address>;
    models["PARAM_check_Ordinary_MACAddress"] = [](Arguments arguments) {
        return as_402(rule::station_address(arguments[0]));
    };
    models["PARAM_check_MACAddress"] = [](Arguments arguments) {
        return as_402(rule::mac_address(arguments[0]));
    };
    models["PARAM_check_transport_protocol"] = on_text<transport_protocol>;
    models["PARAM_get_protocol_from_name"] = on_text<protocol_number>;
    models["PARAM_check_hexa_string"] = on_text<hexadecimal>;
    models["PARAM_check_printable_ascii_string"] = printable;
    models["PARAM_check_provisioning_code"] = on_text<provisioning_code>;
    models["PARAM_check_ui2_value"] = on_text<two_bytes>;
    models["PARAM_check_ui4_value"] = on_text<four_bytes>;
    models["PARAM_check_bool_value"] = on_text<bool_digit>;
    models["PARAM_check_bool_value_use_str"] = on_text<bool_word>;
    models["PARAM_check_number"] = length_of_set<rule::kDigits>;
    models["PARAM_check_num_range"] = number_range;
    models["PARAM_check_password"] = length_of_set<rule::kLettersAndDigits>;
    models["PARAM_check_string_len"] = length_silent;
    models["PARAM_check_string_prefix"] = on_texts<first_byte>;
    models["PARAM_check_dl_test_bufsize"] = buffer_size;
}

}  // namespace ostrel::model
