// Complete: what a word on the command line may become.
#ifndef OSTREL_TOOLS_COMMAND_LINE_COMPLETE_H
#define OSTREL_TOOLS_COMMAND_LINE_COMPLETE_H

#include <span>
#include <string>
#include <vector>

namespace ostrel::tool {

// complete gives the candidates for the last of the words, which are those behind the program's name.
std::vector<std::string> complete(std::span<const std::string> words);

}  // namespace ostrel::tool

#endif
