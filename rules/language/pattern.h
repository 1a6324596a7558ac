// Patterns: languages as regular expressions of ECMA-262, which Python reads in the same way.
#ifndef OSTREL_RULES_LANGUAGE_PATTERN_H
#define OSTREL_RULES_LANGUAGE_PATTERN_H

#include <optional>
#include <string>

#include "rules/language/language.h"

namespace ostrel::rules {

// pattern_of returns an expression that matches the texts of a language, with each byte as the character of the same
// number. It is valid with and without the flag u. Some languages have none.
std::optional<std::string> pattern_of(Languages& languages, Language one);

// class_of returns an expression for one byte of the set.
std::string class_of(const Set& set);

// times_of returns the expression repeated.
std::string times_of(const std::string& one, std::size_t least, std::size_t most);

}  // namespace ostrel::rules

#endif
