// Strings and addresses.
#include "fuzz/model/generic.h"

#include <algorithm>

namespace ostrel::model {

namespace {

Answer unflushed(int code, std::string out)
{
    Answer answer = printed(code, std::move(out));
    answer.flushed = false;
    return answer;
}

int digit_value(char c)
{
    return static_cast<int>(std::string("0123456789abcdef").find(static_cast<char>(std::tolower(c))));
}

// The tests go from left to right, so only the first fault shows.
Answer colon_separated(const Value& argument, bool station_only)
{
    if (is_null(argument) || text(argument).size() != 17) return silent(-1);
    const std::string& value = text(argument);
    for (std::size_t i = 0; i < 17; ++i) {
        if (i % 3 == 2) {
            if (value[i] != ':') return unflushed(-1, value.substr(i, 1));
            continue;
        }
        if (!rule::is_hexadecimal(value.substr(i, 1))) return silent(-1);
        if (station_only && i == 1 && digit_value(value[i]) % 2 == 1) {
            return unflushed(-1, "Broadcasting MAC address, invalid.\n");
        }
    }
    return silent(0);
}

Answer validate_string(Arguments arguments)
{
    if (is_null(arguments[2]) || is_null(arguments[3])) return undefined();
    return silent(rule::length_and_set(number(arguments[0]), number(arguments[1]), text(arguments[2]),
                                       text(arguments[3])));
}

Answer validate_number(Arguments arguments)
{
    if (is_null(arguments[2]) || is_null(arguments[3])) return undefined();
    const std::string& value = text(arguments[3]);
    if (value.find_first_not_of(text(arguments[2])) != std::string::npos) return silent(803);
    const Number read = read_number(value);
    if (read.undefined) return undefined();
    return silent(read.value < number(arguments[0]) || read.value > number(arguments[1]) ? 601 : 0);
}

// The byte that counts is the lowest of the number, so that a negative char finds itself.
Answer count_byte(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    const auto wanted = static_cast<unsigned char>(number(arguments[1]));
    return silent(static_cast<int>(std::ranges::count_if(
        text(arguments[0]), [&](char c) { return static_cast<unsigned char>(c) == wanted; })));
}

Answer address(const std::string& value) { return silent(rule::is_address(value) ? 0 : -1); }

}  // namespace

namespace rule {

Answer mac_address(const Value& value) { return colon_separated(value, false); }
Answer station_address(const Value& value) { return colon_separated(value, true); }

bool is_hexadecimal(const std::string& value)
{
    return value.find_first_not_of("0123456789ABCDEFabcdef") == std::string::npos;
}

bool is_printable(const std::string& value)
{
    return !value.empty() && value.find_first_not_of(printable_ascii()) == std::string::npos;
}

}  // namespace rule

void add_strings(Models& models)
{
    models["ValidateString"] = validate_string;
    models["ValidateNum"] = validate_number;
    models["countChar"] = count_byte;
}

void add_addresses(Models& models)
{
    models["TcmValidateIPAddress"] = on_text<address>;
    models["TcmValidateMACaddress"] = [](Arguments arguments) { return rule::mac_address(arguments[0]); };
    models["isValidOrdinaryMACAddress"] = [](Arguments arguments) {
        return rule::station_address(arguments[0]);
    };
}

void add_generic(Models& models)
{
    add_strings(models);
    add_addresses(models);
    add_accounts(models);
    add_parameters(models);
}

}  // namespace ostrel::model
