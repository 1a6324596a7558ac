// The number at the start of a text, as atoi reads it.
#ifndef OSTREL_SUPPORT_NUMBER_H
#define OSTREL_SUPPORT_NUMBER_H

namespace ostrel {

constexpr unsigned kLargestDigit = 9;

// digit returns a number above kLargestDigit for a character that is not a digit.
constexpr unsigned digit(char c) { return static_cast<unsigned char>(c) - unsigned{'0'}; }

// read_number advances the text to the first character that is not a digit.
int read_number(const char*& text);

int leading_number(const char* text);

}  // namespace ostrel

#endif
