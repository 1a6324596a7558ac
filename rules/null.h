// Null: what becomes of a call with NULL for one argument, by the steps of its check.
#ifndef OSTREL_RULES_NULL_H
#define OSTREL_RULES_NULL_H

#include <cstddef>
#include <string>

#include "rules/build.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// null_does says it in words. It is empty for a number.
std::string null_does(const Check& check, std::size_t argument, const Build& build);

enum class NullOutcome {
    kAccepted,
    kRefused,
    kAssertion,  // a failed assertion ends the process
    kFault,      // it is read, or given to the C library to be printed: a memory fault
    kDepends,    // on the other arguments
};

// null_outcome is for arguments that are no numbers.
NullOutcome null_outcome(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif
