// Pager: a long page, shown by the program that the user chose for that.
#ifndef OSTREL_TOOLS_TERMINAL_PAGER_H
#define OSTREL_TOOLS_TERMINAL_PAGER_H

#include <string_view>

namespace ostrel::tool {

// show_page writes a text to standard output, on a terminal by $PAGER, or by less where nothing is chosen. less ends by
// itself where one screen is enough, unless $LESS says otherwise.
void show_page(std::string_view text);

}  // namespace ostrel::tool

#endif
