// Harvest: texts that are worth trying, taken from a description: keywords, limits and what lies next to them.
#ifndef OSTREL_TESTS_RULES_HARVEST_H
#define OSTREL_TESTS_RULES_HARVEST_H

#include <set>
#include <string>

#include "rules/vocabulary.h"

namespace ostrel::tests {

// harvest gives texts for a check and for those that it uses.
std::set<std::string> harvest(const rules::Check& check, const rules::Build& build);

}  // namespace ostrel::tests

#endif
