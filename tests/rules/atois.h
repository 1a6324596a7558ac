// Atois: what a row's C library is to a build.
#ifndef OSTREL_TESTS_RULES_ATOIS_H
#define OSTREL_TESTS_RULES_ATOIS_H

#include <stdexcept>

#include "rules/build.h"
#include "tests/support/answers.h"

namespace ostrel::tests {

inline rules::Build::Atoi build_atoi(Atoi atoi)
{
    switch (atoi) {
        case Atoi::kLong64:
            return rules::Build::Atoi::kLong64;
        case Atoi::kLong32:
            return rules::Build::Atoi::kLong32;
        case Atoi::kWrapping:
            return rules::Build::Atoi::kWrapping;
    }
    throw std::logic_error("an atoi without a name");
}

}  // namespace ostrel::tests

#endif
