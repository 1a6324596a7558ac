// Names: what somebody may have meant who wrote a name that there is not.
#ifndef OSTREL_CATALOGUE_NAMES_H
#define OSTREL_CATALOGUE_NAMES_H

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

// in_lower_case changes ASCII letters alone.
std::string in_lower_case(std::string_view text);

// find_in_any_case finds the function whose name differs from that at most in its case, or returns NULL where none or
// several do.
const Function* find_in_any_case(std::string_view name);

// similar_names returns at most three of the names: those that contain the word, in any case; else those that a few
// typing errors lead to, in the name or in a word of it. The most similar one comes first.
std::vector<std::string_view> similar_names(std::string_view word,
                                            const std::vector<std::string_view>& names);

// did_you_mean asks "; did you mean a, b or c?", or is empty where no name is similar.
std::string did_you_mean(std::string_view word, const std::vector<std::string_view>& names);

// unknown_function is the message for a name that the catalogue does not hold, with the names that are similar.
std::string unknown_function(std::string_view name);

}  // namespace ostrel::catalogue

#endif
