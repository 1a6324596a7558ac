// Search: texts of a language that a person can read.
#ifndef OSTREL_TOOLS_MAP_SEARCH_H
#define OSTREL_TOOLS_MAP_SEARCH_H

#include <optional>
#include <string>

#include "rules/language/language.h"

namespace ostrel::tool {

// shortest_text is one of the shortest texts of a language, of letters and digits as far as that can be. There is
// none where the language is empty or too large to be looked at.
std::optional<std::string> shortest_text(rules::Languages& languages, rules::Language one);

// reads_number tells whether a language is about a number that is read anywhere.
bool reads_number(const rules::Languages& languages, rules::Language one);

}  // namespace ostrel::tool

#endif
