// Completion of a word on the command line.
#ifndef OSTREL_TOOLS_COMMAND_LINE_COMPLETE_H
#define OSTREL_TOOLS_COMMAND_LINE_COMPLETE_H

#include <CLI/CLI.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

// kFiles is a candidate that stands for the path of any file. No name or keyword begins with "@".
inline constexpr std::string_view kFiles = "@files";

struct Candidate {
    std::string word;
    std::string what;  // a short description; may be empty
};

// complete returns the candidates for the last word. The words are those after the program's name. Case is
// ignored. If the last word is --option=VALUE, each candidate consists of the value alone.
std::vector<Candidate> complete(const CLI::App& app, std::span<const std::string> words);

}  // namespace ostrel::tool

#endif
