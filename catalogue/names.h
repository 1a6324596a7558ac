// Suggestions for misspelt and incomplete names.
#ifndef OSTREL_CATALOGUE_NAMES_H
#define OSTREL_CATALOGUE_NAMES_H

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

// in_lower_case converts only ASCII letters.
std::string in_lower_case(std::string_view text);

// find_in_any_case returns the function with exactly the given name. If there is none, it ignores case, and
// returns the function that matches, or NULL if none or several do.
const Function* find_in_any_case(std::string_view name);

// similar_names returns up to three names that contain the word in any case. If there are none, it returns up
// to three names that, as a whole or in one of their words, differ from it by only a few typos. The most
// similar name comes first.
std::vector<std::string_view> similar_names(std::string_view word,
                                            const std::vector<std::string_view>& names);

// did_you_mean returns "; did you mean a, b or c?", or an empty string if no name is similar.
std::string did_you_mean(std::string_view word, const std::vector<std::string_view>& names);

// unknown_function returns the message for a name that is not in the catalogue, with similar names.
std::string unknown_function(std::string_view name);

}  // namespace ostrel::catalogue

#endif
