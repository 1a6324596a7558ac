#include "src/support/text.h"

namespace ostrel {

bool starts_with_ignoring_case(const char* text, const char* prefix)
{
    for (; *prefix != '\0'; ++prefix, ++text) {
        if (to_lower(*text) != to_lower(*prefix)) return false;
    }
    return true;
}

}  // namespace ostrel
