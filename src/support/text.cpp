#include "support/text.h"

namespace ostrel {

namespace {

char to_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

}  // namespace

bool equals_ignoring_case(const char* a, const char* b)
{
    for (; to_lower(*a) == to_lower(*b); ++a, ++b) {
        if (*a == '\0') return true;
    }
    return false;
}

bool starts_with_ignoring_case(const char* text, const char* prefix)
{
    for (; *prefix != '\0'; ++prefix, ++text) {
        if (to_lower(*text) != to_lower(*prefix)) return false;
    }
    return true;
}

}  // namespace ostrel
