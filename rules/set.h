// Sets of bytes, and their descriptions in words.
#ifndef OSTREL_RULES_SET_H
#define OSTREL_RULES_SET_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::rules {

class Set {
 public:
    constexpr Set() = default;
    constexpr explicit Set(std::string_view members)
    {
        for (const char c : members) add(static_cast<unsigned char>(c));
    }

    static constexpr Set range(unsigned first, unsigned last)
    {
        Set set;
        for (unsigned byte = first; byte <= last; ++byte) set.add(byte);
        return set;
    }

    constexpr Set operator|(const Set& other) const
    {
        Set set = *this;
        for (std::size_t i = 0; i < bits_.size(); ++i) set.bits_[i] |= other.bits_[i];
        return set;
    }
    constexpr Set operator&(const Set& other) const { return *this - (*this - other); }
    constexpr Set operator-(const Set& other) const
    {
        Set set = *this;
        for (std::size_t i = 0; i < bits_.size(); ++i) set.bits_[i] &= ~other.bits_[i];
        return set;
    }
    constexpr bool operator==(const Set&) const = default;

    [[nodiscard]] constexpr bool contains(char c) const { return contains(static_cast<unsigned char>(c)); }
    [[nodiscard]] constexpr bool contains(unsigned char c) const
    {
        return (bits_[c / 64] >> c % 64 & 1) != 0;
    }
    [[nodiscard]] constexpr bool contains(const Set& other) const { return (*this | other) == *this; }
    [[nodiscard]] std::size_t size() const;
    [[nodiscard]] bool empty() const { return *this == Set(); }

    [[nodiscard]] constexpr std::size_t hash() const
    {
        std::uint64_t mixed = 0;
        for (const std::uint64_t word : bits_) mixed = (mixed ^ word) * 0x9E3779B97F4A7C15;
        return static_cast<std::size_t>(mixed >> 32);
    }

    // members lists the bytes in order.
    [[nodiscard]] std::string members() const;

    // find_outside returns the offset of the first byte of text that is not a member, or npos.
    [[nodiscard]] std::size_t find_outside(std::string_view text) const;

 private:
    constexpr void add(unsigned byte) { bits_[byte / 64] |= std::uint64_t{1} << byte % 64; }

    std::array<std::uint64_t, 4> bits_{};
};

// in_words describes the members, as in "letters, digits and - . _".
std::string in_words(const Set& set);

// bare returns a byte as it is or, if it is invisible, in the form \x9F or \x20.
std::string bare(char byte);

// set_words returns the fixed phrases that in_words uses.
std::vector<std::string_view> set_words();

// byte_in_words returns a byte in the form that sentences use: "x", a space, a quotation mark, \x9F.
std::string byte_in_words(char byte);

}  // namespace ostrel::rules

#endif
