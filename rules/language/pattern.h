// Languages as ECMA-262 regular expressions, which Python interprets in the same way.
#ifndef OSTREL_RULES_LANGUAGE_PATTERN_H
#define OSTREL_RULES_LANGUAGE_PATTERN_H

#include <optional>
#include <string>

#include "rules/language/language.h"

namespace ostrel::rules {

// In the expression that pattern_of returns, each byte is the character with the same number. The expression
// is valid with and without the u flag. Some languages have no such expression.
std::optional<std::string> pattern_of(Languages& languages, Language one);

// class_of returns an expression for one byte of the set.
std::string class_of(const Set& set);

std::string times_of(const std::string& one, std::size_t least, std::size_t most);

}  // namespace ostrel::rules

#endif
