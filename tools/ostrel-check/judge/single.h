// Judges one case in a separate process, and prints the check's output as it arrives.
#ifndef OSTREL_TOOLS_JUDGE_SINGLE_H
#define OSTREL_TOOLS_JUDGE_SINGLE_H

#include <span>
#include <string>

#include "catalogue/catalogue.h"

namespace ostrel::tool {

// Manner controls how one case is judged.
struct Manner {
    double limit = 2;            // seconds that the call may take
    bool tries_known = false;    // whether to make calls that are known not to return
    std::string driver_problem;  // why --channels could not replace the wireless driver; empty if it could
};

// judge_one judges the values, prints the verdict and returns the exit code. Throws std::invalid_argument,
// with a message for the user, if the values do not match the check's arguments.
int judge_one(const catalogue::Function& function, std::span<const std::string> words, const Manner& manner);

}  // namespace ostrel::tool

#endif
