// Elements of patterns: bytes, sets, and repetitions.
#include "rules/language/language.h"
#include "rules/language/pattern.h"

namespace ostrel::rules {

namespace {

std::string escaped(char byte)
{
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    constexpr std::string_view kMeaning = "^$\\.*+?()[]{}|";
    const auto code = static_cast<unsigned char>(byte);
    if (byte < ' ' || byte > '~') return {'\\', 'x', kHexDigits[code / 16], kHexDigits[code % 16]};
    if (byte == '-')
        return "\\x2D";  // with the u flag, "-" must not be escaped with a backslash outside a class
    const bool has_meaning = kMeaning.find(byte) != std::string_view::npos;
    return has_meaning ? std::string("\\") + byte : std::string(1, byte);
}

std::string ranges_of(const Set& set)
{
    std::string result;
    const std::string members = set.members();
    for (std::size_t begin = 0; begin < members.size();) {
        std::size_t end = begin + 1;
        while (end < members.size() &&
               static_cast<unsigned char>(members[end]) == static_cast<unsigned char>(members[end - 1]) + 1) {
            ++end;
        }
        result += escaped(members[begin]);
        if (end - begin > 2) result += "-";
        if (end - begin > 1) result += escaped(members[end - 1]);
        begin = end;
    }
    return result;
}

}  // namespace

std::string class_of(const Set& set)
{
    if (set == kEveryByte) return "[\\s\\S]";
    if (set.size() == 1) return escaped(set.members().front());
    const Set others = kEveryByte - set;
    if (others.size() < 32) return "[^" + ranges_of(others) + "]";
    return "[" + ranges_of(set) + "]";
}

std::string times_of(const std::string& one, std::size_t least, std::size_t most)
{
    const bool has_end = most != Languages::kMany;
    if (least == 0 && !has_end) return one + "*";
    if (least == 1 && !has_end) return one + "+";
    if (least == 0 && most == 1) return one + "?";
    std::string count = std::to_string(least);
    if (least != most) count += has_end ? "," + std::to_string(most) : ",";
    return one + "{" + count + "}";
}

}  // namespace ostrel::rules
