// Sets of bytes, written as pairs of first and last byte: "09AF" is 0 to 9 and A to F, and "--" is only "-".
#ifndef OSTREL_TESTS_SUPPORT_BYTE_RANGES_H
#define OSTREL_TESTS_SUPPORT_BYTE_RANGES_H

#include <string_view>

namespace ostrel::tests {

inline bool in_ranges(std::string_view pairs, int byte)
{
    for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
        if (byte >= static_cast<unsigned char>(pairs[i]) &&
            byte <= static_cast<unsigned char>(pairs[i + 1])) {
            return true;
        }
    }
    return false;
}

inline constexpr std::string_view kDigitRanges = "09";
inline constexpr std::string_view kHexRanges = "09AFaf";
inline constexpr std::string_view kAlnumRanges = "09AZaz";
inline constexpr std::string_view kNameRanges = "09AZaz--..__";
inline constexpr std::string_view kMailRanges = "09AZaz--..@@";
inline constexpr std::string_view kAsciiRanges = " ~";
inline constexpr std::string_view kLatin1Ranges = " ~\xA1\xFF";

}  // namespace ostrel::tests

#endif
