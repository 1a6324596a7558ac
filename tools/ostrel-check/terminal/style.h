// Colours and widths for output on a terminal.
#ifndef OSTREL_TOOLS_TERMINAL_STYLE_H
#define OSTREL_TOOLS_TERMINAL_STYLE_H

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::tool {

// wants_colours returns whether a descriptor is a terminal that can show colours, and NO_COLOR is not set.
bool wants_colours(int descriptor);

enum class Colour { kBold, kGreen, kRed };

std::string painted(std::string_view text, Colour colour, bool with_colours);

// kColumns is the default width.
inline constexpr std::size_t kColumns = 80;

// kAnyWidth disables wrapping.
inline constexpr std::size_t kAnyWidth = 0;

// columns_of returns the width of a terminal. For any other descriptor, it returns the second argument.
std::size_t columns_of(int descriptor, std::size_t otherwise);

struct Look {
    bool with_colours = false;
    std::size_t columns = kColumns;
};

Look look_of(int descriptor);

// append_wrapped appends text, wrapped to the given number of columns. indentation is the number of blanks
// before each line, and hanging the number of additional blanks before each line after the first.
void append_wrapped(std::string& out, std::string_view text, std::size_t indentation, std::size_t hanging = 0,
                    std::size_t columns = kColumns);

}  // namespace ostrel::tool

#endif
