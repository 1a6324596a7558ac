// Sets of bytes, including the sets of allowed characters that the rules use. The members of a set are
// written as a string. Bytes from 0x80 up are treated like any others, whether or not char is signed. No set
// contains the terminator, so a scan for the first byte outside a set stops at the end of the value.
#ifndef OSTREL_SUPPORT_CHAR_SET_H
#define OSTREL_SUPPORT_CHAR_SET_H

#include <ostrel/character_sets.h>

#include <cstdint>
#include <cstring>

namespace ostrel {

// Memberships contains a word for each byte value, with one bit for each of the sets below.
struct Memberships {
    std::uint16_t words[256] = {};
};

[[gnu::visibility("hidden")]] extern const Memberships kMemberships;

// CharSet identifies a set by its bit.
enum class CharSet : std::uint16_t {};

// CharSetTexts lists the members of all sets, ordered by bit.
struct CharSetTexts {
    const char* texts[15];
};
static_assert(sizeof(CharSetTexts::texts) / sizeof(const char*) <= 16, "a word has no bit for another set");

consteval CharSetTexts char_set_texts()
{
    // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): some strings are built from others.
    return {{CHARSET_DIGITS, CHARSET_ALNUM, CHARSET_PPP_DIGITS, CHARSET_HEX, CHARSET_ASCII_PRINTABLE,
             CHARSET_LATIN1_PRINTABLE, CHARSET_IPV4, CHARSET_HOST, CHARSET_URL, CHARSET_HOSTPORT,
             CHARSET_NAME, CHARSET_MAIL, CHARSET_ROUTER_NAME, CHARSET_CIS_NAME, CHARSET_IDENT_LETTERS}};
}

consteval bool is_subset(const char* members, const char* of)
{
    for (; *members != '\0'; ++members) {
        const char* same = of;
        while (*same != *members && *same != '\0') ++same;
        if (*same == '\0') return false;
    }
    return true;
}

// char_set returns the set with the given members, which may be in any order. If there is no such set, the
// call does not compile.
consteval CharSet char_set(const char* members)
{
    unsigned bit = 0;
    const CharSetTexts all = char_set_texts();
    while (!is_subset(members, all.texts[bit]) || !is_subset(all.texts[bit], members)) ++bit;
    return CharSet{static_cast<std::uint16_t>(1U << bit)};
}

constexpr CharSet kDigits = char_set(CHARSET_DIGITS);
constexpr CharSet kAlnum = char_set(CHARSET_ALNUM);
constexpr CharSet kPppDigits = char_set(CHARSET_PPP_DIGITS);
constexpr CharSet kHexDigits = char_set(CHARSET_HEX);
constexpr CharSet kAsciiPrintable = char_set(CHARSET_ASCII_PRINTABLE);
constexpr CharSet kLatin1Printable = char_set(CHARSET_LATIN1_PRINTABLE);
constexpr CharSet kIpv4 = char_set(CHARSET_IPV4);
constexpr CharSet kHost = char_set(CHARSET_HOST);
constexpr CharSet kUrl = char_set(CHARSET_URL);
constexpr CharSet kHostPort = char_set(CHARSET_HOSTPORT);
constexpr CharSet kName = char_set(CHARSET_NAME);
constexpr CharSet kMail = char_set(CHARSET_MAIL);
constexpr CharSet kDescription = char_set(CHARSET_DESCRIPTION);
constexpr CharSet kDeviceName = char_set(CHARSET_DEVICE_NAME);
constexpr CharSet kRouterName = char_set(CHARSET_ROUTER_NAME);
constexpr CharSet kCisName = char_set(CHARSET_CIS_NAME);
constexpr CharSet kIdentLetters = char_set(CHARSET_IDENT_LETTERS);

inline bool contains(CharSet set, char c)
{
    return (kMemberships.words[static_cast<unsigned char>(c)] & static_cast<unsigned>(set)) != 0;
}

// OwnSet is a set that a caller supplies. It is cleared in quarters, which compilers turn into plain stores.
// To clear it all at once, they would use an instruction whose start-up takes longer than checking a short
// value. Members are added four at a time, because the overhead of one loop iteration per member would exceed
// the cost of adding it.
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

// first_outside returns a pointer to the first byte that is not in the set, which may be the terminator.
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
