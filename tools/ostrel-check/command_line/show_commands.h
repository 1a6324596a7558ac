// Commands that show something and judge nothing. Each returns the exit code.
#ifndef OSTREL_TOOLS_COMMAND_LINE_SHOW_COMMANDS_H
#define OSTREL_TOOLS_COMMAND_LINE_SHOW_COMMANDS_H

#include <CLI/CLI.hpp>

#include "command_line/options.h"

namespace ostrel::tool {

int show_comparison(const Options& options);
int show_list(const Options& options);
int show_explanation(const Options& options);

// show_candidates shows what the last of the words may become.
int show_candidates(const CLI::App& app, const Options& options);

// show_help shows what was asked for: help or the version.
int show_help(const CLI::App& app, const CLI::Success& success);

}  // namespace ostrel::tool

#endif
