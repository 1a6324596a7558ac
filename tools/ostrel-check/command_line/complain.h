// Messages about wrong usage, printed to standard error with advice.
#ifndef OSTREL_TOOLS_COMMAND_LINE_COMPLAIN_H
#define OSTREL_TOOLS_COMMAND_LINE_COMPLAIN_H

#include <CLI/CLI.hpp>
#include <string>
#include <string_view>

#include "catalogue/catalogue.h"

namespace ostrel::tool {

inline constexpr std::string_view kAdviceOnNames =
    "ostrel-check list WORD searches the names and rules of all checks.\n";

// complain prints the problem and then the advice, which must end with a line feed. It returns the exit code.
int complain(std::string_view problem, std::string_view advice);

int complain_of_usage(std::string_view problem);

// complain_of_name reports a word that is neither a command nor a check, with suggestions.
int complain_of_name(const CLI::App& app, const std::string& name);

// find_meant ignores case, but prints a note if it differs. It returns NULL if there is no such check.
const catalogue::Function* find_meant(const std::string& name);

}  // namespace ostrel::tool

#endif
