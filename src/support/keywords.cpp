#include "support/keywords.h"

#include "support/text.h"

namespace ostrel {

namespace {

// is_end asks about a character of the list.
bool is_end(char c) { return c <= ' '; }

template <typename Fold>
inline bool is_any(const char* value, const char* keyword, Fold fold)
{
    for (;;) {
        const char* c = value;
        for (; *keyword == fold(*c) && !is_end(*keyword); ++keyword) ++c;
        if (*c == '\0' && is_end(*keyword)) return true;
        char passed = '\0';
        do {
            passed = *keyword++;
        } while (!is_end(passed));
        if (passed == '\0') return false;
    }
}

}  // namespace

bool is_one_of(const char* value, const char* keywords)
{
    return is_any(value, keywords, [](char c) { return c; });
}

bool is_one_of_ignoring_case(const char* value, const char* keywords)
{
    return is_any(value, keywords, to_lower);
}

}  // namespace ostrel
