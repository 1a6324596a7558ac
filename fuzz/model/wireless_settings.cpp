// The other settings of the wireless LAN.
#include <optional>
#include <sstream>

#include "fuzz/model/generic.h"

namespace ostrel::model {

namespace {

// The names of HTML 4 for the characters from 160 on, in order.
const char* const kLatinNames =
    "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr "
    "deg plusmn sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest "
    "Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml Igrave Iacute Icirc Iuml "
    "ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave Uacute Ucirc Uuml Yacute THORN szlig "
    "agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc euml igrave iacute icirc iuml "
    "eth ntilde ograve oacute ocirc otilde ouml divide oslash ugrave uacute ucirc uuml yacute thorn yuml";

std::map<std::string, char> name_table()
{
    std::map<std::string, char> names = {
        {"quot", '"'}, {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"apos", '\''}};
    std::istringstream words(kLatinNames);
    std::string word;
    for (int code = 160; words >> word; ++code) names[word] = static_cast<char>(code);
    return names;
}

// number_in reads leading zeros too, however many, and nothing that is no digit. SUB is what no byte stands for.
std::optional<char> number_in(std::string digits, int base)
{
    const std::string_view set = base == 16 ? "0123456789abcdefABCDEF" : rule::kDigits;
    if (digits.find_first_not_of(set) != std::string::npos) return std::nullopt;
    digits.erase(0, digits.find_first_not_of('0'));
    if (digits.empty()) return std::nullopt;
    const int code = std::stoi(digits.substr(0, 4), nullptr, base);
    return static_cast<char>(code > 255 ? 26 : code);
}

// meant is the byte that stands for what is between "&" and ";".
std::optional<char> meant(const std::string& reference)
{
    static const std::map<std::string, char> names = name_table();
    if (const auto found = names.find(reference); found != names.end()) return found->second;
    if (reference.starts_with("#x") || reference.starts_with("#X")) return number_in(reference.substr(2), 16);
    if (reference.starts_with("#")) return number_in(reference.substr(1), 10);
    return std::nullopt;
}

std::string converted(const std::string& value)
{
    std::string result;
    std::size_t i = 0;
    while (i < value.size()) {
        const std::size_t end =
            value[i] == '&' ? value.find_first_not_of("#" + std::string(rule::kLettersAndDigits), i + 1)
                            : std::string::npos;
        if (end != std::string::npos && value[end] == ';') {
            if (const auto byte = meant(value.substr(i + 1, end - i - 1))) {
                result += *byte;
                i = end + 1;
                continue;
            }
        }
        result += value[i++];
    }
    return result;
}

Answer ssid(const std::string& value)
{
    const std::string name = converted(value);
    Answer answer = rule::network_name(name);
    if (answer.code != 0) answer.out += "Error in WLAN_check_ssid: Error SSID:" + name + "\n";
    answer.after.emplace_back(name);
    return answer;
}

Answer refused_value(const char* name, const char* what, const std::string& value, int code = 402)
{
    return rule::refused(code, name, what + (":" + value) + "\n\n");
}

Answer max_bit_rate(const std::string& value)
{
    if (rule::is_rate(value)) return silent(0);
    return refused_value("WLAN_check_max_bit_rate", "Error max bit rate", value);
}

Answer basic_rates(const std::string& value)
{
    if (rule::is_rate_list(value)) return silent(0);
    return refused_value("WLAN_check_basic_data_transmit_rate", "Error basic data transmit rate", value);
}

Answer operation_rates(const std::string& value)
{
    if (value.empty() || value == "1,2,5.5,6,9,11,12,18,24,36,48,54") return silent(0);
    return refused_value("WLAN_check_op_data_transmit_rate", "Error operation data transmit rate", value);
}

Answer location(const std::string& value)
{
    if (value.size() <= 4096) return silent(0);
    return rule::refused(402, "WLAN_check_location_description",
                         "Error location description :" + value + " length out of range. [0,4096]\n\n");
}

bool is_digit(char c) { return c >= '0' && c <= '9'; }

Answer domain(const std::string& value)
{
    const char* const name = "WLAN_check_regulatory_domain";
    if (value.size() > 3) {
        return rule::refused(402, name,
                             "Error regulatory domain :" + value + " length out of range. [0,3]\n\n");
    }
    if (value.size() == 3 && is_digit(value[0]) && is_digit(value[1]) &&
        std::string("OIoi").find(value[2]) != std::string::npos) {
        return silent(0);
    }
    return refused_value(name, "Error regulatory domain value invalid ", value);
}

Answer operation_mode(Arguments arguments)
{
    if (is_null(arguments[0])) return undefined();
    const char* const name = "WLAN_check_device_opration_mode";
    const std::string& value = text(arguments[0]);
    const int mode = number(arguments[1]);
    if (value.size() > 31) {
        return rule::refused(402, name, "Error operating mode:" + value + " length out of range. [0,31]\n\n");
    }
    if (mode != 0 && mode != 1) {
        return rule::refused(402, name, format("Error operating mode:readwrite mode %d invalid \n\n", mode));
    }
    const bool good =
        mode == 1 ? value == "InfrastructureAccessPoint"
                  : value == "WirelessBridge" || value == "WirelessRepeater" || value == "WirelessStation";
    return good ? silent(0) : refused_value(name, "Error operating mode", value);
}

Answer distance(const std::string& value)
{
    const Number read = read_number(value);
    if (read.undefined) return undefined();
    if (read.value < 0) return silent(0);
    return refused_value("WLAN_check_DistanceFromRoot", "Error DistanceFromRoot", value, 728);
}

}  // namespace

void add_wireless_settings(Models& models)
{
    models["WLAN_check_ssid"] = on_text<ssid>;
    models["WLAN_check_max_bit_rate"] = on_text<max_bit_rate>;
    models["WLAN_check_basic_data_transmit_rate"] = on_text<basic_rates>;
    models["WLAN_check_op_data_transmit_rate"] = on_text<operation_rates>;
    models["WLAN_check_location_description"] = on_text<location>;
    models["WLAN_check_regulatory_domain"] = on_text<domain>;
    models["WLAN_check_device_opration_mode"] = operation_mode;
    models["WLAN_check_DistanceFromRoot"] = on_text<distance>;
}

}  // namespace ostrel::model
