// Finds a readable string in a language.
#ifndef OSTREL_TOOLS_MAP_SEARCH_H
#define OSTREL_TOOLS_MAP_SEARCH_H

#include <optional>
#include <string>

#include "rules/language/language.h"

namespace ostrel::tool {

// shortest_text returns one of the shortest strings in a language, made of letters and digits if possible. It
// returns nothing if the language is empty or too large to search.
std::optional<std::string> shortest_text(rules::Languages& languages, rules::Language one);

// reads_number returns whether any part of a language depends on the number that atoi reads.
bool reads_number(const rules::Languages& languages, rules::Language one);

}  // namespace ostrel::tool

#endif
