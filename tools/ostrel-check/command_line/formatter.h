// Formats help, including the arguments NAME and VALUE, which are not defined in the parser.
#ifndef OSTREL_TOOLS_COMMAND_LINE_FORMATTER_H
#define OSTREL_TOOLS_COMMAND_LINE_FORMATTER_H

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace ostrel::tool {

// commands_of returns the commands that help and completion show, in order.
std::vector<const CLI::App*> commands_of(const CLI::App& app);

// options_of returns the options that begin with "-".
std::vector<const CLI::Option*> options_of(const CLI::App& app);

std::vector<const CLI::Option*> positionals_of(const CLI::App& app);

// synopses_of returns a line for each way to call the program or, for a command, a single line.
std::vector<std::string> synopses_of(const CLI::App& app);

// usage_of returns the synopses as they appear at the beginning of the help.
std::string usage_of(const CLI::App& app);

class Formatter : public CLI::Formatter {
 public:
    std::string make_usage(const CLI::App* app, std::string name) const override;
    std::string make_option_opts(const CLI::Option* option) const override;
};

}  // namespace ostrel::tool

#endif
