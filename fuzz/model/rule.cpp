#include "fuzz/model/rule.h"

namespace ostrel::model::rule {

namespace {

std::string bytes(int first, int last)
{
    std::string result;
    for (int byte = first; byte <= last; ++byte) result.push_back(static_cast<char>(byte));
    return result;
}

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

const std::string& printable_ascii()
{
    static const std::string set = bytes(0x20, 0x7E);
    return set;
}

const std::string& printable_latin1()
{
    static const std::string set = bytes(0x20, 0x7E) + bytes(0xA1, 0xFF);
    return set;
}

int length_and_set(int min, int max, std::string_view set, std::string_view value)
{
    const int length = static_cast<int>(value.size());
    if (length < min) return 801;
    if (length > max) return 802;
    for (const char c : value) {
        if (set.find(c) == std::string_view::npos) return 803;
    }
    return 0;
}

Answer refused(int code, std::string_view name, const std::string& message)
{
    return printed(code, "Error in " + std::string(name) + ": " + message);
}

Answer followed(const Answer& first, const Answer& later)
{
    Answer answer = later;
    answer.out = first.out + later.out;
    return answer;
}

bool equal_ignoring_case(std::string_view a, std::string_view b)
{
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lower(a[i]) != lower(b[i])) return false;
    }
    return true;
}

std::vector<std::string> split(std::string_view value, char separator)
{
    std::vector<std::string> pieces(1);
    for (const char c : value) {
        if (c == separator) {
            pieces.emplace_back();
        } else {
            pieces.back().push_back(c);
        }
    }
    return pieces;
}

// Empty octets are refused by the dots around them, and leading zeros are decimal zeros.
bool is_address(const std::string& value)
{
    if (length_and_set(7, 15, "0123456789.", value) != 0) return false;
    const std::vector<std::string> octets = split(value, '.');
    if (octets.size() != 4) return false;
    for (const std::string& octet : octets) {
        // More than 9 digits leave no room for the other three, and an empty one fails below or did so above.
        if (octet.empty() || octet.size() > 9 || std::stoi(octet) > 255) return false;
    }
    return true;
}

}  // namespace ostrel::model::rule
