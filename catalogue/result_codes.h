// The names and meanings of the result codes.
#ifndef OSTREL_CATALOGUE_RESULT_CODES_H
#define OSTREL_CATALOGUE_RESULT_CODES_H

#include <string_view>

namespace ostrel::catalogue {

// meaning returns the meaning of a result code in a few words.
std::string_view meaning(int code);

// constant returns the name that result_code.h defines for a result code, or an empty string for any other
// number.
std::string_view constant(int code);

}  // namespace ostrel::catalogue

#endif
