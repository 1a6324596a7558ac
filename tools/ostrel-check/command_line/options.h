// The command line, from which help, completion and the lists in the manual page are generated.
#ifndef OSTREL_TOOLS_COMMAND_LINE_OPTIONS_H
#define OSTREL_TOOLS_COMMAND_LINE_OPTIONS_H

#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "batch/batch.h"
#include "command_line/ending_options.h"
#include "judge/single.h"

namespace ostrel::tool {

struct Options {
    Manner manner;
    std::string map;
    bool with_escapes = false;
    std::optional<std::string> channels;
    std::string name;
    bool json = false;
    std::optional<std::string> schema;
    bool markdown = false;
    bool json_schema = false;
    bool reference = false;
    bool hazards = false;
    bool stream = false;
    bool described = false;
    std::string family;
    std::vector<std::string> patterns;
    unsigned jobs = 1;
    EndingOptions ending;
    Rules rules;
    std::vector<std::string> words;
};

// make_command_line returns the commands with their options. Parsing stores the values in options.
std::unique_ptr<CLI::App> make_command_line(Options& options);

}  // namespace ostrel::tool

#endif
