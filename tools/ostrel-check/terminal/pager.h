// Shows a long page with the user's pager.
#ifndef OSTREL_TOOLS_TERMINAL_PAGER_H
#define OSTREL_TOOLS_TERMINAL_PAGER_H

#include <string_view>

namespace ostrel::tool {

// show_page writes a page to standard output. On a terminal, it uses $PAGER, or less by default. less exits
// immediately if the page fits on one screen, unless the user has set $LESS.
void show_page(std::string_view text);

}  // namespace ostrel::tool

#endif
