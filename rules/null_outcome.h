// What NULL does in an argument, read from the steps of a check without a call.
#ifndef OSTREL_RULES_NULL_OUTCOME_H
#define OSTREL_RULES_NULL_OUTCOME_H

#include <cstddef>

#include "rules/vocabulary.h"

namespace ostrel::rules {

enum class NullOutcome {
    kAccepted,
    kRefused,
    kAssertion,  // a failed assertion ends the process
    kFault,      // it is read, which is a memory fault
    kDepends,    // on the other arguments
};

// null_outcome_of is for arguments that are no numbers. Where the others are NULL too, nothing is said.
NullOutcome null_outcome_of(const Check& check, std::size_t argument);

}  // namespace ostrel::rules

#endif
