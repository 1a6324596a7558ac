// Null walk: how a call may come to its end with NULL for one argument and anything else for the others.
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

// NullEnd is one such end, and where the call comes to it.
struct NullEnd {
    enum class Kind {
        kAccepted,
        kRefused,
        kAnswered,  // with a number that is no result code
        kPrinted,   // left to the C library, which is given NULL to print
        kFault,
        kAsserted,
        kStays,  // it does not come back
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

// add adds the codes that are not among them yet.
void add(std::vector<int>& codes, const std::vector<int>& more);

// null_ends walks the steps of a check. The argument is no number.
NullEnds null_ends(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif
