// HTML character references, for where the host supplies no converter.
#ifndef OSTREL_SUPPORT_CHARACTER_REFERENCES_H
#define OSTREL_SUPPORT_CHARACTER_REFERENCES_H

#include <cstddef>

namespace ostrel {

// convert_references rewrites the references in the first length bytes of the text into the Latin-1 bytes
// that they name, and terminates the shortened text; text[length] must be writable.
//
// It knows the names of HTML 4 for Latin-1 characters ("&nbsp;" to "&yuml;", "&quot;", "&amp;", "&lt;",
// "&gt;"), XML's "&apos;", and numbers from 1 in decimal ("&#65;") and hexadecimal ("&#x41;", "&#X41;"), of which
// those above 255 become the control character SUB. Anything else stays as it is: an unknown name, a missing ";", the
// number 0. The text is read once, so a replacement is not read again: "&amp;lt;" becomes "&lt;". The text
// never grows.
void convert_references(char* text, std::size_t length);

}  // namespace ostrel

#endif
