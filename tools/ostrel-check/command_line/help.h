// Help: what --help says behind the options.
#ifndef OSTREL_TOOLS_COMMAND_LINE_HELP_H
#define OSTREL_TOOLS_COMMAND_LINE_HELP_H

#include <string>
#include <string_view>

namespace ostrel::tool {

std::string_view main_help();
std::string_view batch_help();
std::string_view summarise_help();
std::string_view list_help();
std::string_view explain_help();
std::string_view compare_help();
std::string_view complete_help();

// advice_for says what to do about a problem with a check's name or its values.
std::string advice_for(std::string_view name);

}  // namespace ostrel::tool

#endif
