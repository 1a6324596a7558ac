// The string rules that other rules call; the exported ones are <ostrel/strings.h>.
#ifndef OSTREL_SRC_STRINGS_H
#define OSTREL_SRC_STRINGS_H

#include <cstddef>
#include <cstdint>

#include "src/support/char_set.h"

namespace ostrel {

// validate_length returns 0, OSTREL_TOO_SHORT or OSTREL_TOO_LONG. The limits are signed: a negative minimum
// lets every length through, a negative maximum none. Exact for any length, also beyond what an int can hold.
int validate_length(int min_len, int max_len, std::size_t length);

// Text is how long a text may be and what it may consist of, packed into a number: compilers read a structure from
// memory where a number is part of an instruction.
enum class Text : std::uint32_t {};

constexpr Text text(std::uint8_t min_len, std::uint8_t max_len, CharSet allowed)
{
    return static_cast<Text>(static_cast<std::uint32_t>(allowed) << 16U | unsigned{max_len} << 8U | min_len);
}

// validate_string is ValidateString with a ready set. A value that it accepts is read once: its length is known when
// its last character has been looked up.
int validate_string(const char* value, int min_len, int max_len, CharSet allowed);
int validate_string(const char* value, Text rule);

// validate_number is ValidateNum with the set of digits.
int validate_number(const char* value, int min, int max);

}  // namespace ostrel

#endif
