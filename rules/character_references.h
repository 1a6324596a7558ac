// HTML character references, as the library replaces them where the host has no converter of its own.
#ifndef OSTREL_RULES_CHARACTER_REFERENCES_H
#define OSTREL_RULES_CHARACTER_REFERENCES_H

#include "rules/expression.h"

namespace ostrel::rules {

// character_references replaces each reference that stands for one byte of ISO 8859-1: the names of HTML 4 for these
// characters, XML's five names, and the numbers 1 to 255, decimal and hexadecimal. A higher number becomes the control
// character SUB. Anything else stays as it is, a reference without its ";" included. What a reference becomes is not
// read again.
const Conversion& character_references();

}  // namespace ostrel::rules

#endif
