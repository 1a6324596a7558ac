// Walk: what can be found in a description by looking at its steps.
#ifndef OSTREL_RULES_WALK_H
#define OSTREL_RULES_WALK_H

#include <string>
#include <vector>

#include "rules/build.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// prints tells whether a check, or one that it uses, can print.
bool prints(const Check& check);

// may_not_return tells whether there are calls of a check that do not come back.
bool may_not_return(const Check& check);

// asks_driver tells whether a check asks the wireless driver for its channels.
bool asks_driver(const Check& check);

// tables lists the tables that the conditions of a check look into.
std::vector<const Table*> tables(const Check& check);

// is_written tells whether an argument is one that a function may write to.
bool is_written(const Argument& argument);

// keywords lists the words and numbers that an argument, or an item of it, may be, in the order of the steps; where no
// step judges them, those by which cases are distinguished. Other arguments may decide which of them are allowed.
std::vector<std::string> keywords(const Check& check, std::size_t argument, const Build& build);

}  // namespace ostrel::rules

#endif
