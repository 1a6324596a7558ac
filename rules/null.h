// The effect of passing NULL for one argument, derived from the steps of the check.
#ifndef OSTREL_RULES_NULL_H
#define OSTREL_RULES_NULL_H

#include <cstddef>
#include <string>

#include "rules/build.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// null_does describes the effect in words. It returns an empty string for a number.
std::string null_does(const Check& check, std::size_t argument, const Build& build);

enum class NullOutcome {
    kAccepted,
    kRefused,
    kAssertion,  // a failed assertion ends the process
    kFault,      // NULL is read, or passed to the C library for printing, which causes a memory fault
    kDepends,    // the effect depends on the other arguments
};

// null_outcome must not be called for a number.
NullOutcome null_outcome(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif
