// A list of keywords is written with "|" between them and compiled into a single string without pointers. In
// that string, each keyword is preceded by a byte that contains the distance to the next such byte, and a 0
// follows the last keyword.
#ifndef OSTREL_SUPPORT_KEYWORDS_H
#define OSTREL_SUPPORT_KEYWORDS_H

#include <cstddef>

namespace ostrel {

template <std::size_t size>
struct Keywords {
    constexpr operator const char*() const { return text; }  // NOLINT(google-explicit-constructor)

    char text[size];
};

template <std::size_t size>
consteval Keywords<size + 1> keywords(const char (&list)[size])
{
    Keywords<size + 1> made = {};
    std::size_t start = 0;
    for (std::size_t i = 0; i < size; ++i) {
        made.text[i + 1] = list[i];
        if (list[i] != '|' && list[i] != '\0') continue;
        made.text[start] = static_cast<char>(i + 1 - start);
        start = i + 1;
    }
    return made;
}

bool is_one_of(const char* value, const char* keywords);

// is_one_of_ignoring_case folds only the letters A to Z of the value; the keywords must be in lower case.
bool is_one_of_ignoring_case(const char* value, const char* keywords);

}  // namespace ostrel

#endif
