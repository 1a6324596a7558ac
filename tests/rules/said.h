// Reasons with the sentence that a reader expects for each, written by hand, not taken from sentences.cpp.
#ifndef OSTREL_TESTS_RULES_SAID_H
#define OSTREL_TESTS_RULES_SAID_H

#include <string>
#include <vector>

#include "rules/reason.h"

namespace ostrel::rules {

struct Expectation {
    Reason reason;
    std::string sentence;
};

const std::vector<Expectation>& all_said();

}  // namespace ostrel::rules

#endif
