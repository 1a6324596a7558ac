// Standard: the texts that a data model allows for a parameter, as languages.
#ifndef OSTREL_TOOLS_MAP_STANDARD_H
#define OSTREL_TOOLS_MAP_STANDARD_H

#include "map/facts.h"
#include "rules/language/language.h"

namespace ostrel::tool {

// Standard is exact for ASCII texts. In a text with other characters, the model counts characters and a check counts
// bytes, so least and most are lower and upper bounds of what is allowed.
struct Standard {
    rules::Language values;   // allowed ASCII texts
    rules::Language form;     // ASCII texts that have the type's form, regardless of limits
    rules::Language others;   // those of form that are certainly not allowed
    rules::Language foreign;  // ASCII texts without blanks that certainly do not have the type's form
    rules::Language least;    // every text in it that has the type's form is allowed
    rules::Language most;     // contains every allowed text
    bool is_text = false;     // texts may contain other characters
    bool is_known = true;     // false: nothing is known of the type, or of a pattern
};

Standard standard_of(rules::Languages& languages, const ModelFacts& facts);

}  // namespace ostrel::tool

#endif
