// Single: one case, judged in a process of its own, with the check's own lines as they come.
#ifndef OSTREL_TOOLS_JUDGE_SINGLE_H
#define OSTREL_TOOLS_JUDGE_SINGLE_H

#include <span>
#include <string>

#include "catalogue/catalogue.h"

namespace ostrel::tool {

// Manner is how one case is judged.
struct Manner {
    double limit = 2;            // seconds that the call may take
    bool tries_known = false;    // also a call that is known not to return
    std::string driver_problem;  // why --channels could not replace the wireless driver; or empty
};

// judge_one judges the values, prints the verdict and returns the exit code. Throws std::invalid_argument, with
// a message for the user, for values that the check does not take.
int judge_one(const catalogue::Function& function, std::span<const std::string> words, const Manner& manner);

}  // namespace ostrel::tool

#endif
