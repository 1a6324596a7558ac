// Reasons with the sentence that a reader expects for each, written by hand and not copied from
// sentences.cpp.
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

// all_said returns the expected sentences for every id in every form.
const std::vector<Expectation>& all_said();

}  // namespace ostrel::rules

#endif
