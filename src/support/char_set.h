// Sets of bytes, and those that the rules judge characters against.
//
// Members are given as texts as people read them; bytes from 0x80 up are members like any others, whatever the
// sign of char. The terminator is in no set, so that whoever walks through a value by a set stops at its end.
#ifndef OSTREL_SUPPORT_CHAR_SET_H
#define OSTREL_SUPPORT_CHAR_SET_H

#include <cstdint>
#include <cstring>
#include <string_view>

namespace ostrel {

// Memberships holds a word for each byte value, in which each of the sets below has its bit.
struct Memberships {
    std::uint16_t words[256] = {};
};

[[gnu::visibility("hidden")]] extern const Memberships kMemberships;

// CharSet is one of the sets of <ostrel/character_sets.h>, by its bit.
class CharSet {
 public:
    constexpr explicit CharSet(unsigned position) : bit_(1U << position) {}

    static constexpr CharSet of_bit(unsigned bit)
    {
        CharSet set(0);
        set.bit_ = bit;
        return set;
    }

    constexpr unsigned bit() const { return bit_; }

    bool contains(char c) const { return (kMemberships.words[static_cast<unsigned char>(c)] & bit_) != 0; }

 private:
    unsigned bit_;
};

constexpr CharSet kDigits(0);
constexpr CharSet kAlnum(1);
constexpr CharSet kPppDigits(2);
constexpr CharSet kHexDigits(3);
constexpr CharSet kAsciiPrintable(4);
constexpr CharSet kLatin1Printable(5);
constexpr CharSet kIpv4(6);
constexpr CharSet kHost(7);
constexpr CharSet kUrl(8);
constexpr CharSet kHostPort(9);
constexpr CharSet kName(10);
constexpr CharSet kMail(11);
constexpr CharSet kDescription(12);
constexpr CharSet kDeviceName(13);
constexpr CharSet kRouterName(14);
constexpr CharSet kCisName(15);

// OwnSet is a set that a caller brings along. It is cleared in quarters, which compilers do with plain stores;
// for all at once they take an instruction that costs more to start than a short value costs to judge.
class OwnSet {
 public:
    explicit OwnSet(const char* members)
    {
        constexpr std::size_t kQuarter = 64;
        for (std::size_t i = 0; i < sizeof is_member_; i += kQuarter)
            std::memset(is_member_ + i, 0, kQuarter);
        for (; *members != '\0'; ++members) is_member_[static_cast<unsigned char>(*members)] = true;
    }

    bool contains(char c) const { return is_member_[static_cast<unsigned char>(c)]; }

 private:
    bool is_member_[256];
};

// first_outside gives the first byte of the text that is not in the set, its terminator if all others are.
template <typename Set>
const char* first_outside(const Set& set, const char* text)
{
    while (set.contains(*text)) ++text;
    return text;
}

template <typename Set>
bool contains_all(const Set& set, const char* text)
{
    return *first_outside(set, text) == '\0';
}

// leading gives the part of the text before the first byte that is not in the set.
template <typename Set>
std::string_view leading(const Set& set, std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() && set.contains(text[length])) ++length;
    return {text.data(), length};
}

template <typename Set>
bool contains_all(const Set& set, std::string_view text)
{
    return leading(set, text).size() == text.size();
}

}  // namespace ostrel

#endif
