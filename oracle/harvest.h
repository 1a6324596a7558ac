// Harvest: texts to try, taken from a description: keywords, limits and their neighbours.
#ifndef OSTREL_ORACLE_HARVEST_H
#define OSTREL_ORACLE_HARVEST_H

#include <set>
#include <string>

#include "rules/vocabulary.h"

namespace ostrel::oracle {

// harvest returns texts for a check and for the checks that it uses.
std::set<std::string> harvest(const rules::Check& check, const rules::Build& build);

}  // namespace ostrel::oracle

#endif
