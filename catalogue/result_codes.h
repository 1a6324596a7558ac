// Result codes: the one table of what they are called and what they mean.
#ifndef OSTREL_CATALOGUE_RESULT_CODES_H
#define OSTREL_CATALOGUE_RESULT_CODES_H

#include <string_view>

namespace ostrel::catalogue {

// meaning says what a result code means, in a few words.
std::string_view meaning(int code);

// constant returns the name that result_code.h has for a result code; empty for any other number.
std::string_view constant(int code);

}  // namespace ostrel::catalogue

#endif
