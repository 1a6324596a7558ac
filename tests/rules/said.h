// Said: reasons, and what a reader expects to be said of each. It is written by hand, not taken from sentences.cpp.
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

// all_said has every id in every form.
const std::vector<Expectation>& all_said();

}  // namespace ostrel::rules

#endif
