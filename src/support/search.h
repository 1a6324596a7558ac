// Search for a piece in a text, in linear time and without memory of its own.
#ifndef OSTREL_SUPPORT_SEARCH_H
#define OSTREL_SUPPORT_SEARCH_H

#include <string_view>

namespace ostrel {

// contains tells whether the part stands anywhere in the text; the empty part does in every text. It looks at
// each byte a bounded number of times, whatever the two hold. strstr would need a terminator behind the part.
bool contains(std::string_view text, std::string_view part);

}  // namespace ostrel

#endif
