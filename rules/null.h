// Null: the effect of NULL for one argument, derived from the steps of the check.
#ifndef OSTREL_RULES_NULL_H
#define OSTREL_RULES_NULL_H

#include <cstddef>
#include <string>

#include "rules/build.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// null_does describes the effect. It is empty for a number.
std::string null_does(const Check& check, std::size_t argument, const Build& build);

enum class NullOutcome {
    kAccepted,
    kRefused,
    kAssertion,  // a failed assertion ends the process
    kFault,      // it is read, or passed to the C library for printing: a memory fault
    kDepends,    // on the other arguments
};

// null_outcome accepts only arguments that are not numbers.
NullOutcome null_outcome(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif
