// The ways in which a call may end if one argument is NULL and the others are arbitrary.
#ifndef OSTREL_RULES_NULL_WALK_H
#define OSTREL_RULES_NULL_WALK_H

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "rules/build.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// NullEnd is one way in which the call may end, and the condition for it.
struct NullEnd {
    enum class Kind {
        kAccepted,
        kRefused,
        kAnswered,  // the result is a number, not a result code
        kPrinted,   // NULL is passed to the C library for printing
        kFault,
        kAsserted,
        kStays,  // the call does not return
    };

    Kind kind;
    std::vector<int> codes = {};
    std::string when = {};  // the condition in words, or empty if there is none
    std::string_view assertion = {};
};

struct NullEnds {
    std::vector<NullEnd> ends;
    std::set<std::string> sources;  // the other arguments on which the end depends
};

// add appends the codes that are not yet in the list.
void add(std::vector<int>& codes, const std::vector<int>& more);

// null_ends follows the steps of a check. The argument must not be a number.
NullEnds null_ends(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif
