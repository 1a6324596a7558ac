// Commands that print information and judge nothing. Each function returns the exit code.
#ifndef OSTREL_TOOLS_COMMAND_LINE_SHOW_COMMANDS_H
#define OSTREL_TOOLS_COMMAND_LINE_SHOW_COMMANDS_H

#include <CLI/CLI.hpp>

#include "command_line/options.h"

namespace ostrel::tool {

int show_comparison(const Options& options);
int show_list(const Options& options);
int show_explanation(const Options& options);

int show_candidates(const CLI::App& app, const Options& options);

// show_help prints the help or the version, whichever was requested.
int show_help(const CLI::App& app, const CLI::Success& success);

}  // namespace ostrel::tool

#endif
