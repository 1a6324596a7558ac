// Null walk: how a call may end if one argument is NULL and the others are arbitrary.
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

// NullEnd is one possible end, and its condition.
struct NullEnd {
    enum class Kind {
        kAccepted,
        kRefused,
        kAnswered,  // with a number instead of a result code
        kPrinted,   // passed to the C library, which must print NULL
        kFault,
        kAsserted,
        kStays,  // it does not return
    };

    Kind kind;
    std::vector<int> codes = {};
    std::string when = {};  // empty: always
    std::string_view assertion = {};
};

struct NullEnds {
    std::vector<NullEnd> ends;
    std::set<std::string> sources;  // the other arguments on which it depends
};

// add appends the codes that are not in the list yet.
void add(std::vector<int>& codes, const std::vector<int>& more);

// null_ends follows the steps of a check. The argument must not be a number.
NullEnds null_ends(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif
