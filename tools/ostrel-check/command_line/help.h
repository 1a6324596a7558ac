// Help texts printed after the options.
#ifndef OSTREL_TOOLS_COMMAND_LINE_HELP_H
#define OSTREL_TOOLS_COMMAND_LINE_HELP_H

#include <string_view>

namespace ostrel::tool {

std::string_view main_help();
std::string_view batch_help();
std::string_view summarise_help();
std::string_view list_help();
std::string_view explain_help();
std::string_view compare_help();
std::string_view complete_help();

}  // namespace ostrel::tool

#endif
