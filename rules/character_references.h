// The HTML character references that the library replaces if the host has no converter.
#ifndef OSTREL_RULES_CHARACTER_REFERENCES_H
#define OSTREL_RULES_CHARACTER_REFERENCES_H

#include "rules/expression.h"

namespace ostrel::rules {

// character_references replaces each reference to an ISO 8859-1 character. A reference is an HTML 4 name of
// such a character, one of the five XML names, or a decimal or hexadecimal number from 1 to 255. A higher
// number becomes the control character SUB. Anything else, such as a reference without its ";", is left
// unchanged. Replacements are not searched for further references.
const Conversion& character_references();

}  // namespace ostrel::rules

#endif
