// Harvest: texts that are worth trying, taken from a description: keywords, limits and what lies next to them.
#ifndef OSTREL_ORACLE_HARVEST_H
#define OSTREL_ORACLE_HARVEST_H

#include <set>
#include <string>

#include "rules/vocabulary.h"

namespace ostrel::oracle {

// harvest gives texts for a check and for those that it uses.
std::set<std::string> harvest(const rules::Check& check, const rules::Build& build);

}  // namespace ostrel::oracle

#endif
