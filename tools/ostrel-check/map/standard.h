// Standard: the texts that a data model allows for a parameter, as languages.
#ifndef OSTREL_TOOLS_MAP_STANDARD_H
#define OSTREL_TOOLS_MAP_STANDARD_H

#include "map/facts.h"
#include "rules/language/language.h"

namespace ostrel::tool {

// Standard is exact for texts of ASCII. Of a text with other characters, the model counts characters and a check
// counts bytes; least and most bound from both sides what is allowed then.
struct Standard {
    rules::Language values;   // texts of ASCII that are allowed
    rules::Language form;     // texts of ASCII that have the type's form, limits aside
    rules::Language others;   // those of form that are certainly not allowed
    rules::Language foreign;  // texts of ASCII without blanks that certainly do not have the type's form
    rules::Language least;    // every text of it that has the type's form is allowed
    rules::Language most;     // every text that is allowed is of it
    bool is_text = false;     // it may hold other characters
    bool is_known = true;     // false: nothing is known of the type, or of a pattern
};

Standard standard_of(rules::Languages& languages, const ModelFacts& facts);

}  // namespace ostrel::tool

#endif
