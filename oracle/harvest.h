// Collects strings to try from a description, such as its keywords and the numbers at or next to its limits.
#ifndef OSTREL_ORACLE_HARVEST_H
#define OSTREL_ORACLE_HARVEST_H

#include <set>
#include <string>

#include "rules/vocabulary.h"

namespace ostrel::oracle {

// harvest returns strings to try with a check, from its description and those of the checks that it uses.
std::set<std::string> harvest(const rules::Check& check, const rules::Build& build);

}  // namespace ostrel::oracle

#endif
