// HTML character references, for hosts that supply no converter.
#ifndef OSTREL_SUPPORT_CHARACTER_REFERENCES_H
#define OSTREL_SUPPORT_CHARACTER_REFERENCES_H

#include <cstddef>

namespace ostrel {

// convert_references replaces the references in the first length bytes of the text by the Latin-1 bytes that they
// denote, and terminates the shortened text; text[length] must be writable.
//
// It recognizes the names of HTML 4 for Latin-1 characters ("&nbsp;" to "&yuml;", "&quot;", "&amp;", "&lt;", "&gt;"),
// XML's "&apos;", and numbers from 1 in decimal ("&#65;") and hexadecimal ("&#x41;", "&#X41;"), of which those above
// 255 become the control character SUB. Anything else is unchanged: an unknown name, a missing ";", the number 0. The
// text is read once, so a replacement is not replaced again: "&amp;lt;" becomes "&lt;". The text never grows.
void convert_references(char* text, std::size_t length);

}  // namespace ostrel

#endif
