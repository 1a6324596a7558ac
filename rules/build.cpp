#include "rules/build.h"

#include <cstdint>
#include <cstdlib>
#include <limits>

namespace ostrel::rules {

namespace {

bool is_white(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::int64_t bounded(std::string_view digits, bool negative, std::int64_t lowest, std::int64_t highest)
{
    std::int64_t value = 0;
    for (const char c : digits) {
        const int digit = c - '0';
        if (negative) {
            if (value < (lowest + digit) / 10) return lowest;
            value = value * 10 - digit;
        } else {
            if (value > (highest - digit) / 10) return highest;
            value = value * 10 + digit;
        }
    }
    return value;
}

std::uint32_t wrapped(std::string_view digits, bool negative)
{
    std::uint32_t value = 0;
    for (const char c : digits) value = value * 10 + static_cast<std::uint32_t>(c - '0');
    return negative ? 0 - value : value;
}

}  // namespace

Build::Atoi atoi_here()
{
    const int read = std::atoi("99999999999999999999");
    if (read == -1) return Build::Atoi::kLong64;
    return read == std::numeric_limits<int>::max() ? Build::Atoi::kLong32 : Build::Atoi::kWrapping;
}

Number read_number(std::string_view text, Build::Atoi atoi)
{
    Number number;
    std::size_t i = 0;
    while (i < text.size() && is_white(text[i])) ++i;
    number.begin = i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    const std::size_t first = i;
    while (i < text.size() && is_digit(text[i])) ++i;
    number.end = i;
    const std::string_view digits = text.substr(first, i - first);

    constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();
    constexpr int kLowestInt = std::numeric_limits<int>::min();
    constexpr int kHighestInt = std::numeric_limits<int>::max();
    const std::int64_t value = bounded(digits, negative, kLowest, kHighest);
    number.beyond_int = value < kLowestInt || value > kHighestInt;
    if (!number.beyond_int || atoi == Build::Atoi::kLong64) {
        number.value = static_cast<int>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(value)));
    } else if (atoi == Build::Atoi::kLong32) {
        number.value = value < 0 ? kLowestInt : kHighestInt;
    } else {
        number.value = static_cast<int>(wrapped(digits, negative));
    }
    return number;
}

}  // namespace ostrel::rules
