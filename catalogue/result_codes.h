// The names and meanings of the result codes.
#ifndef OSTREL_CATALOGUE_RESULT_CODES_H
#define OSTREL_CATALOGUE_RESULT_CODES_H

#include <string_view>

namespace ostrel::catalogue {

std::string_view meaning(int code);

// constant returns the name of the code in result_code.h, or an empty string for any other number.
std::string_view constant(int code);

}  // namespace ostrel::catalogue

#endif
