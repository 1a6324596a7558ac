// Datum in words: what a reason found or allows, and texts in printable form.
#ifndef OSTREL_RULES_DATUM_H
#define OSTREL_RULES_DATUM_H

#include <cstddef>
#include <string>
#include <string_view>

#include "rules/reason.h"

namespace ostrel::rules {

// in_words shows a datum; a long list is shown as its size and the text that is closest to what was found.
std::string in_words(const Datum& datum, const Datum& found = {});

// is_one returns whether the singular applies.
bool is_one(const Datum& datum);

// keyword_in_words shows a keyword, quoted if it could be mistaken for something else.
std::string keyword_in_words(std::string_view word);

// quoted shows a text in printable form: in quotation marks, cut if long, with \x9F for an unprintable byte.
std::string quoted(std::string_view text);

// length_shown replaces a secret: "<12 bytes>".
std::string length_shown(std::size_t size);

}  // namespace ostrel::rules

#endif
