// Datum in words: what a reason has found or allows, and texts so that they can be printed.
#ifndef OSTREL_RULES_DATUM_H
#define OSTREL_RULES_DATUM_H

#include <cstddef>
#include <string>
#include <string_view>

#include "rules/reason.h"

namespace ostrel::rules {

// in_words shows a datum. Of a long list it says how many there are, and which is most like what was found.
std::string in_words(const Datum& datum, const Datum& found = {});

// is_one tells that one thing is spoken of.
bool is_one(const Datum& datum);

// keyword_in_words shows a keyword, quoted where it could be taken for something else.
std::string keyword_in_words(std::string_view word);

// quoted shows a text so that it can be printed: between quotation marks, cut, with \x9F for what is not printable.
std::string quoted(std::string_view text);

// length_shown is what is shown in the place of a secret: "<12 bytes>".
std::string length_shown(std::size_t size);

}  // namespace ostrel::rules

#endif
