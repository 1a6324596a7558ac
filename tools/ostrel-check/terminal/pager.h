// Pager: shows a long page with the program that the user chose.
#ifndef OSTREL_TOOLS_TERMINAL_PAGER_H
#define OSTREL_TOOLS_TERMINAL_PAGER_H

#include <string_view>

namespace ostrel::tool {

// show_page writes a text to standard output. On a terminal, it uses $PAGER, or less by default. less ends by itself
// if the text fits on one screen, unless $LESS says otherwise.
void show_page(std::string_view text);

}  // namespace ostrel::tool

#endif
