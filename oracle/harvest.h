// Derives test strings from a description, such as its keywords and the numbers at or next to its limits.
#ifndef OSTREL_ORACLE_HARVEST_H
#define OSTREL_ORACLE_HARVEST_H

#include <set>
#include <string>

#include "rules/vocabulary.h"

namespace ostrel::oracle {

// harvest derives test strings for a check from its description and those of the checks that it uses.
std::set<std::string> harvest(const rules::Check& check, const rules::Build& build);

}  // namespace ostrel::oracle

#endif
