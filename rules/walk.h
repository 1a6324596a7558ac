// Properties of a description that follow from its steps.
#ifndef OSTREL_RULES_WALK_H
#define OSTREL_RULES_WALK_H

#include <string>
#include <vector>

#include "rules/build.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// prints returns true if a check, or one that it calls, can print.
bool prints(const Check& check);

bool may_not_return(const Check& check);

// asks_driver returns true if a check queries the wireless driver for its channels.
bool asks_driver(const Check& check);

std::vector<const Table*> tables(const Check& check);

bool is_written(const Argument& argument);

// keywords returns the words and numbers that steps allow for an argument or its items, in the order of the
// steps. If no step does so, it returns those that distinguish cases. Which of them are allowed may depend on
// other arguments.
std::vector<std::string> keywords(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif
