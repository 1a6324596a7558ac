// A set of bytes, and the sets that the rules judge characters against.
#ifndef OSTREL_SUPPORT_CHAR_SET_H
#define OSTREL_SUPPORT_CHAR_SET_H

#include <cstdint>
#include <string_view>

namespace ostrel {

// CharSet holds a bit for each byte value. Members are added from texts as people read them; bytes from 0x80
// up are members like any others, whatever the sign of char.
class CharSet {
 public:
    constexpr explicit CharSet(const char* members)
    {
        for (; *members != '\0'; ++members) {
            const auto byte = static_cast<unsigned char>(*members);
            words_[byte / 32] |= std::uint32_t{1} << (byte % 32);
        }
    }

    constexpr bool contains(char c) const
    {
        const auto byte = static_cast<unsigned char>(c);
        return (words_[byte / 32] >> (byte % 32) & 1) != 0;
    }

    constexpr bool contains_all(std::string_view text) const
    {
        for (const char c : text) {
            if (!contains(c)) return false;
        }
        return true;
    }

 private:
    std::uint32_t words_[8] = {};
};

}  // namespace ostrel

// The sets of <ostrel/character_sets.h>, made at compile time. They are declared hidden, or else some processors
// would look up where each of them is in a table, whose rows need relocations.
namespace [[gnu::visibility("hidden")]] ostrel {

extern const CharSet kDigits;
extern const CharSet kAlnum;
extern const CharSet kPppDigits;
extern const CharSet kHexDigits;
extern const CharSet kAsciiPrintable;
extern const CharSet kLatin1Printable;
extern const CharSet kIpv4;
extern const CharSet kHost;
extern const CharSet kUrl;
extern const CharSet kHostPort;
extern const CharSet kName;
extern const CharSet kMail;
extern const CharSet kDescription;
extern const CharSet kDeviceName;
extern const CharSet kRouterName;
extern const CharSet kCisName;

}  // namespace ostrel

#endif
