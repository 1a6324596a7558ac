// NULL: whether a check may be called with it.
#ifndef OSTREL_WEB_DESCRIBE_NULL_H
#define OSTREL_WEB_DESCRIBE_NULL_H

#include <cstddef>

#include "rules/vocabulary.h"

namespace ostrel::web {

enum class Null {
    kRead,       // each call with NULL there ends the process by a memory fault
    kAsserted,   // or by a failed assertion
    kSometimes,  // the other arguments decide
    kAlways,     // it is a value like others
};

Null null_of(const rules::Check& check, std::size_t argument);

}  // namespace ostrel::web

#endif
