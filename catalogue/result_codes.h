// Result codes: the only table of their names and meanings.
#ifndef OSTREL_CATALOGUE_RESULT_CODES_H
#define OSTREL_CATALOGUE_RESULT_CODES_H

#include <string_view>

namespace ostrel::catalogue {

// meaning returns the meaning of a result code in a few words.
std::string_view meaning(int code);

// constant returns the name of a result code in result_code.h, or an empty text for any other number.
std::string_view constant(int code);

}  // namespace ostrel::catalogue

#endif
