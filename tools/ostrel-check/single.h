// Single: one case, judged in a process of its own, with the check's own lines as they come.
#ifndef OSTREL_TOOLS_SINGLE_H
#define OSTREL_TOOLS_SINGLE_H

#include <span>
#include <string>
#include <string_view>

namespace ostrel::tool {

// judge_one judges the values, prints the verdict and gives the exit code. Throws std::invalid_argument, with
// a message for the user, when the name or the values do not suit.
int judge_one(std::string_view name, std::span<const std::string> words, double limit);

}  // namespace ostrel::tool

#endif
