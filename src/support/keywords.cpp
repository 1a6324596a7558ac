#include "support/keywords.h"

#include "support/text.h"

namespace ostrel {

namespace {

bool is_end(char c) { return c == '|' || c == '\0'; }

bool is_any(const char* value, const char* keyword, bool ignores_case)
{
    for (;; ++keyword) {
        const char* c = value;
        for (; !is_end(*keyword) && *keyword == (ignores_case ? to_lower(*c) : *c); ++keyword) ++c;
        if (*c == '\0' && is_end(*keyword)) return true;
        while (!is_end(*keyword)) ++keyword;
        if (*keyword == '\0') return false;
    }
}

}  // namespace

bool is_one_of(const char* value, const char* keywords) { return is_any(value, keywords, false); }

bool is_one_of_ignoring_case(const char* value, const char* keywords)
{
    return is_any(value, keywords, true);
}

}  // namespace ostrel
