// HTML character references, as the library replaces them if the host has no converter.
#ifndef OSTREL_RULES_CHARACTER_REFERENCES_H
#define OSTREL_RULES_CHARACTER_REFERENCES_H

#include "rules/expression.h"

namespace ostrel::rules {

// character_references replaces each reference to a byte of ISO 8859-1: the names of HTML 4 for these characters, the
// five names of XML, and the numbers 1 to 255, decimal and hexadecimal. A higher number becomes the control character
// SUB. Anything else, such as a reference without its ";", is unchanged. Replacements are not replaced again.
const Conversion& character_references();

}  // namespace ostrel::rules

#endif
