// Faults of single texts: addresses, hosts, URLs, mail addresses, codes.

#include <ostrel/character_sets.h>

#include <algorithm>
#include <cstdlib>

#include "catalogue/conditions.h"

namespace ostrel::catalogue {

namespace {

constexpr std::string_view kDigits = CHARSET_DIGITS;

std::string instead(std::string_view text, std::size_t index, std::string_view expected)
{
    return byte_at(text, index) + ", where " + std::string(expected) + " belongs";
}

Fault url_fault(std::string_view text, std::string_view scheme, std::string_view secure_scheme)
{
    if (text.size() > 256) return "it has " + in_words(text.size(), "byte") + ", above 256";
    if (Fault fault = outside_of(text, CHARSET_URL)) return *fault + ", which no URL here may hold";
    std::string_view rest = text;
    if (rest.starts_with(scheme)) {
        rest.remove_prefix(scheme.size());
    } else if (rest.starts_with(secure_scheme)) {
        rest.remove_prefix(secure_scheme.size());
    } else {
        return "it begins neither with " + std::string(scheme) + " nor with " + std::string(secure_scheme);
    }
    const std::size_t colon = rest.find(':');
    const bool has_port = colon != std::string_view::npos;
    const std::string_view host = has_port ? rest.substr(0, colon) : rest.substr(0, rest.find('/'));
    if (Fault fault = host_fault(host)) {
        return "the host " + quoted(host) + (has_port ? ", which is what stands before the \":\"" : "") +
               ": " + *fault;
    }
    if (!has_port) return std::nullopt;
    const std::string_view port = rest.substr(colon + 1, rest.find('/', colon) - colon - 1);
    if (outside_of(port, kDigits)) return "the port " + quoted(port) + " holds what is no digit";
    const int number = std::atoi(std::string(port).c_str());
    if (number >= 0 && number <= 65535) return std::nullopt;
    return "the port " + quoted(port) + " is not 0 to 65535";
}

Fault judge_mac(std::string_view text, bool station_only)
{
    if (text.size() != 17) return "it has " + in_words(text.size(), "byte") + ", not 17";
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i % 3 == 2) {
            if (text[i] != ':') return instead(text, i, "\":\"");
            continue;
        }
        const bool is_digit = std::string_view(CHARSET_HEX).find(text[i]) != std::string_view::npos;
        if (!is_digit) return instead(text, i, "a hexadecimal digit");
        const bool is_odd = std::string_view("13579BDFbdf").find(text[i]) != std::string_view::npos;
        if (i == 1 && station_only && is_odd) {
            return byte_at(text, i) + ", whose lowest bit makes it the address of a group";
        }
    }
    return std::nullopt;
}

}  // namespace

std::string quoted(std::string_view text)
{
    constexpr std::size_t kLongest = 40;
    std::string shown = "\"";
    for (const char c : text.substr(0, kLongest)) shown += c >= ' ' && c <= '~' ? c : '?';
    return shown + (text.size() > kLongest ? "...\"" : "\"");
}

Fault ipv4_fault(std::string_view text)
{
    if (text.size() < 7 || text.size() > 15) {
        return "it has " + in_words(text.size(), "byte") + ", not 7 to 15";
    }
    int number = -1;
    int dots = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '.') {
            if (number < 0) return byte_at(text, i) + ", and no number stands before it";
            number = -1;
            ++dots;
        } else if (text[i] >= '0' && text[i] <= '9') {
            number = (number < 0 ? 0 : number * 10) + (text[i] - '0');
            if (number > 255)
                return byte_at(text, i) + ", which makes number " + std::to_string(dots + 1) +
                       " greater than 255";
        } else {
            return byte_at(text, i) + ", which is neither digit nor \".\"";
        }
    }
    if (number < 0) return "it ends in \".\"";
    if (dots != 3) return "it has " + in_words(static_cast<std::size_t>(dots), "dot") + ", not 3";
    return std::nullopt;
}

Fault mac_fault(std::string_view text) { return judge_mac(text, false); }

Fault station_fault(std::string_view text) { return judge_mac(text, true); }

Fault domain_fault(std::string_view text)
{
    if (text.empty()) return "it is empty";
    if (!outside_of(text, CHARSET_IPV4)) return "it has digits and dots alone";
    std::size_t begin = 0;
    for (std::size_t label = 1;; ++label) {
        const std::size_t end = std::min(text.find('.', begin), text.size());
        const std::string which = "label " + std::to_string(label);
        if (label > 6) return "it has more than 6 labels";
        if (end == begin) return which + " is empty";
        if (end - begin > 20) return which + " has " + std::to_string(end - begin) + " bytes, above 20";
        const std::size_t at = text.substr(0, end).find_first_not_of(CHARSET_HOST, begin);
        if (at != std::string_view::npos)
            return byte_at(text, at) + ", which is no letter, digit, \"-\" or \".\"";
        if (end == text.size()) return std::nullopt;
        begin = end + 1;
    }
}

Fault host_fault(std::string_view text)
{
    // What is not made of digits and dots can only be a name, and what is can only be an address.
    if (text.empty() || outside_of(text, CHARSET_IPV4)) return domain_fault(text);
    if (Fault fault = ipv4_fault(text)) return "no IPv4 address: " + *fault;
    return std::nullopt;
}

Fault server_url_fault(std::string_view text) { return url_fault(text, "x-dslf_cwmp://", "x-dslf_cwmps://"); }

Fault firmware_url_fault(std::string_view text) { return url_fault(text, "http://", "https://"); }

Fault email_fault(std::string_view text)
{
    if (text.size() < 5) return "it has " + in_words(text.size(), "byte") + ", below 5";
    const std::size_t at = text.find('@');
    const std::size_t dot = text.rfind('.');
    if (at == std::string_view::npos) return "it has no \"@\"";
    if (dot == std::string_view::npos) return "it has no \".\"";
    if (at == 0) return "nothing stands before the first \"@\"";
    if (dot < at + 2) return "the last \".\" does not stand two bytes or more behind the first \"@\"";
    if (dot + 1 == text.size()) return "nothing stands behind the last \".\"";
    return std::nullopt;
}

Fault provisioning_fault(std::string_view text)
{
    constexpr std::string_view kShape =
        "000.004.004.999";  // a digit is the highest that may stand in its place
    if (text.size() != kShape.size()) return "it has " + in_words(text.size(), "byte") + ", not 15";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char highest = kShape[i];
        if (highest == '.' ? text[i] == '.' : text[i] >= '0' && text[i] <= highest) continue;
        if (highest == '.') return instead(text, i, "\".\"");
        return instead(text, i, highest == '0' ? "0" : std::string("0 to ") + highest);
    }
    return std::nullopt;
}

Fault rates_fault(std::string_view text)
{
    constexpr std::string_view kRates = ",1,2,5.5,6,9,11,12,18,24,36,48,54,";
    if (text == "all" || text == "default") return std::nullopt;
    std::size_t begin = 0;
    for (std::size_t item = 1;; ++item) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        const std::string_view rate = text.substr(begin, end - begin);
        if (rate.empty()) return "item " + std::to_string(item) + " is empty";
        if (kRates.find("," + std::string(rate) + ",") == std::string_view::npos) {
            return "item " + std::to_string(item) + ", " + quoted(rate) + ", is no rate";
        }
        if (end == text.size()) return std::nullopt;
        begin = end + 1;
    }
}

Fault pass_phrase_fault(std::string_view text)
{
    if (text.size() == 64) return outside_of(text, CHARSET_HEX);
    if (text.size() < 8 || text.size() > 63) return "it has " + in_words(text.size(), "byte");
    return outside_of(text, CHARSET_ASCII_PRINTABLE);
}

Fault regulatory_fault(std::string_view text)
{
    if (text.size() != 3) return "it has " + in_words(text.size(), "byte") + ", not 3";
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
        if (text[i] < '0' || text[i] > '9') return instead(text, i, "a digit");
    }
    if (std::string_view("OIoi").find(text[2]) == std::string_view::npos)
        return instead(text, 2, "O, I, o or i");
    return std::nullopt;
}

}  // namespace ostrel::catalogue
