// Sets of bytes, and those that the rules judge characters against.
//
// Members are given as texts as people read them; bytes from 0x80 up are members like any others, whatever the
// sign of char. The terminator is in no set, so that whoever walks through a value by a set stops at its end.
#ifndef OSTREL_SUPPORT_CHAR_SET_H
#define OSTREL_SUPPORT_CHAR_SET_H

#include <cstdint>
#include <cstring>

namespace ostrel {

// Memberships holds a word for each byte value, in which each of the sets below has its bit.
struct Memberships {
    std::uint16_t words[256] = {};
};

[[gnu::visibility("hidden")]] extern const Memberships kMemberships;

// CharSet is one of the sets of <ostrel/character_sets.h>, by its bit.
enum class CharSet : std::uint16_t {};

constexpr CharSet kDigits{1U << 0U};
constexpr CharSet kAlnum{1U << 1U};
constexpr CharSet kPppDigits{1U << 2U};
constexpr CharSet kHexDigits{1U << 3U};
constexpr CharSet kAsciiPrintable{1U << 4U};
constexpr CharSet kLatin1Printable{1U << 5U};
constexpr CharSet kIpv4{1U << 6U};
constexpr CharSet kHost{1U << 7U};
constexpr CharSet kUrl{1U << 8U};
constexpr CharSet kHostPort{1U << 9U};
constexpr CharSet kName{1U << 10U};
constexpr CharSet kMail{1U << 11U};
constexpr CharSet kDescription{1U << 12U};
constexpr CharSet kDeviceName{1U << 13U};
constexpr CharSet kRouterName{1U << 14U};
constexpr CharSet kCisName{1U << 15U};

inline bool contains(CharSet set, char c)
{
    return (kMemberships.words[static_cast<unsigned char>(c)] & static_cast<unsigned>(set)) != 0;
}

// OwnSet is a set that a caller brings along. It is cleared in quarters, which compilers do with plain stores;
// for all at once they take an instruction that costs more to start than a short value costs to judge. Its members are
// taken four at a time, because a loop around each would cost more than they do.
class OwnSet {
 public:
    explicit OwnSet(const char* members)
    {
        clear(0);
        clear(1);
        clear(2);
        clear(3);
        std::size_t left = std::strlen(members);
        for (; left >= 4; left -= 4, members += 4) {
            add(members[0]);
            add(members[1]);
            add(members[2]);
            add(members[3]);
        }
        for (; left > 0; --left) add(*members++);
    }

    bool contains(char c) const { return is_member_[static_cast<unsigned char>(c)]; }

 private:
    static constexpr std::size_t kQuarter = 64;

    void clear(std::size_t quarter) { std::memset(is_member_ + quarter * kQuarter, 0, kQuarter); }

    void add(char c) { is_member_[static_cast<unsigned char>(c)] = true; }

    bool is_member_[4 * kQuarter];
};

inline bool contains(const OwnSet& set, char c) { return set.contains(c); }

// first_outside returns the first byte of the text that is not in the set, its terminator if all others are.
template <typename Set>
inline const char* first_outside(Set set, const char* text)
{
    for (;; text += 2) {
        if (!contains(set, text[0])) return text;
        if (!contains(set, text[1])) return text + 1;
    }
}

template <typename Set>
inline bool contains_all(const Set& set, const char* text)
{
    return *first_outside<const Set&>(set, text) == '\0';
}

}  // namespace ostrel

#endif
