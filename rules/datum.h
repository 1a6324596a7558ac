// Descriptions of the data in a reason, and printable forms of strings.
#ifndef OSTREL_RULES_DATUM_H
#define OSTREL_RULES_DATUM_H

#include <cstddef>
#include <string>
#include <string_view>

#include "rules/reason.h"

namespace ostrel::rules {

// For a long list, in_words returns only the size and the entry that is closest to what was found.
std::string in_words(const Datum& datum, const Datum& found = {});

// is_one returns whether a verb or noun that refers to the datum must be singular.
bool is_one(const Datum& datum);

// keyword_in_words returns a keyword, in quotation marks if it could be mistaken for something else.
std::string keyword_in_words(std::string_view word);

// quoted truncates a long string, and shows unprintable bytes in the form \x9F.
std::string quoted(std::string_view text);

// length_shown returns what is shown in place of a secret, such as "<12 bytes>".
std::string length_shown(std::size_t size);

}  // namespace ostrel::rules

#endif
