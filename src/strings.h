// String rules that other rules call; <ostrel/strings.h> declares the exported ones.
#ifndef OSTREL_SRC_STRINGS_H
#define OSTREL_SRC_STRINGS_H

#include <cstddef>
#include <cstdint>

#include "src/support/char_set.h"

namespace ostrel {

// validate_length returns 0, OSTREL_TOO_SHORT or OSTREL_TOO_LONG. A negative minimum accepts every length, a
// negative maximum accepts none, and lengths need not fit in an int.
int validate_length(int min_len, int max_len, std::size_t length);

// Text packs the length limits and the allowed set into one number, because compilers load a structure from
// memory but encode a number in the instruction.
enum class Text : std::uint32_t {};

constexpr Text text(std::uint8_t min_len, std::uint8_t max_len, CharSet allowed)
{
    return static_cast<Text>(static_cast<std::uint32_t>(allowed) << 16U | unsigned{max_len} << 8U | min_len);
}

// validate_string is ValidateString with a predefined set. It reads an accepted value only once, because the
// scan of its characters also determines its length.
int validate_string(const char* value, int min_len, int max_len, CharSet allowed);
int validate_string(const char* value, Text rule);

// validate_number is ValidateNum with the set of digits.
int validate_number(const char* value, int min, int max);

}  // namespace ostrel

#endif
