// Sample languages, and the short strings to test them with.
#ifndef OSTREL_TESTS_RULES_LANGUAGES_H
#define OSTREL_TESTS_RULES_LANGUAGES_H

#include <functional>
#include <string>
#include <vector>

#include "rules/language/language.h"

namespace ostrel::tests {

// for_each_text visits all strings over an alphabet, up to the given length.
void for_each_text(const std::string& alphabet, std::size_t longest,
                   const std::function<void(const std::string&)>& look, const std::string& begin = "");

std::vector<rules::Cut> cuts();

// inner_languages returns languages for parts of strings.
std::vector<rules::Language> inner_languages(rules::Languages& languages);

}  // namespace ostrel::tests

#endif
