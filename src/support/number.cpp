#include "src/support/number.h"

#include <cstddef>
#include <cstdlib>

namespace ostrel {

namespace {

constexpr std::ptrdiff_t kMostDigits = 9;  // any nine-digit number fits in an int

}  // namespace

int read_number(const char*& text)
{
    const char* const start = text;
    unsigned number = 0;
    for (; digit(*text) <= kLargestDigit; ++text) number = number * 10 + digit(*text);
    // Signs, white space and longer numbers are left to the C library.
    if (text == start || text - start > kMostDigits) return std::atoi(start);
    return static_cast<int>(number);
}

int leading_number(const char* text) { return read_number(text); }

}  // namespace ostrel
