// Reads the number at the start of a string, as atoi does.
#ifndef OSTREL_SUPPORT_NUMBER_H
#define OSTREL_SUPPORT_NUMBER_H

namespace ostrel {

constexpr unsigned kLargestDigit = 9;

// digit returns the value of a digit, or a number above kLargestDigit for any other character.
constexpr unsigned digit(char c) { return static_cast<unsigned char>(c) - unsigned{'0'}; }

// read_number advances the pointer to the first character that is not a digit.
int read_number(const char*& text);

int leading_number(const char* text);

}  // namespace ostrel

#endif
