// Style: colours and widths, for people at a terminal.
#ifndef OSTREL_TOOLS_TERMINAL_STYLE_H
#define OSTREL_TOOLS_TERMINAL_STYLE_H

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::tool {

// wants_colours tells that a descriptor is a terminal that can show colours, and that NO_COLOR is not set.
bool wants_colours(int descriptor);

enum class Colour { kBold, kGreen, kRed };

// painted returns the text in that colour, or unchanged without colours.
std::string painted(std::string_view text, Colour colour, bool with_colours);

// kColumns is the width where no terminal has another one.
inline constexpr std::size_t kColumns = 80;

// kAnyWidth has nothing wrapped.
inline constexpr std::size_t kAnyWidth = 0;

// columns_of returns the width of a terminal, or otherwise what is said.
std::size_t columns_of(int descriptor, std::size_t otherwise);

// Look is how a page is shown.
struct Look {
    bool with_colours = false;
    std::size_t columns = kColumns;
};

Look look_of(int descriptor);

// append_wrapped adds a text in lines of at most so many columns, each after so many blanks, and all but the first after
// some more.
void append_wrapped(std::string& out, std::string_view text, std::size_t indentation, std::size_t hanging = 0,
                    std::size_t columns = kColumns);

}  // namespace ostrel::tool

#endif
