#include "src/support/keywords.h"

#include "src/support/text.h"

namespace ostrel {

namespace {

template <typename Fold>
inline bool is_any(const char* value, const char* keyword, Fold fold)
{
    while (*keyword != '\0') {
        const char* next = keyword + *keyword;
        const char* c = value;
        // The keyword pointer advances first, even if the comparison fails.
        // NOLINTNEXTLINE(bugprone-inc-dec-in-conditions)
        while (++keyword != next && *keyword == fold(*c)) ++c;
        if (keyword == next && *c == '\0') return true;
        keyword = next;
    }
    return false;
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
