// The values that a data model allows for a parameter, as languages.
#ifndef OSTREL_TOOLS_MAP_STANDARD_H
#define OSTREL_TOOLS_MAP_STANDARD_H

#include "map/facts.h"
#include "rules/language/language.h"

namespace ostrel::tool {

// Standard is exact for ASCII strings. In other strings, the model counts characters and a check counts
// bytes, so least and most are lower and upper bounds on the set of allowed values.
struct Standard {
    rules::Language values;   // allowed ASCII strings
    rules::Language form;     // ASCII strings that have the type's form, regardless of limits
    rules::Language others;   // strings in form that are certainly not allowed
    rules::Language foreign;  // ASCII strings without blanks that certainly do not have the type's form
    rules::Language least;    // every string in this set that has the type's form is allowed
    rules::Language most;     // contains every allowed string
    bool is_text = false;     // values may contain non-ASCII characters
    bool is_known = true;     // false if the type is unknown, or if its limits or patterns are not supported
};

Standard standard_of(rules::Languages& languages, const ModelFacts& facts);

}  // namespace ostrel::tool

#endif
