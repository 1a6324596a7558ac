// Converts HTML character references, for hosts that supply no converter.
#ifndef OSTREL_SUPPORT_CHARACTER_REFERENCES_H
#define OSTREL_SUPPORT_CHARACTER_REFERENCES_H

#include <cstddef>

namespace ostrel {

// convert_references replaces the references in the first length bytes of the string with the Latin-1 bytes
// that they denote, and terminates the result; text[length] must be writable.
//
// It recognises the HTML 4 names for Latin-1 characters ("&nbsp;" to "&yuml;", "&quot;", "&amp;", "&lt;",
// "&gt;"), XML's "&apos;", and numbers of 1 or more in decimal ("&#65;") or hexadecimal ("&#x41;", "&#X41;").
// Numbers above 255 become the control character SUB. Anything else, such as an unknown name, a reference
// without a ";" or the number 0, is unchanged. The string is read only once, so a replacement is not replaced
// again: "&amp;lt;" becomes "&lt;". The string never grows.
void convert_references(char* text, std::size_t length);

}  // namespace ostrel

#endif
