// String comparisons, byte by byte and independent of the locale.
#ifndef OSTREL_SUPPORT_TEXT_H
#define OSTREL_SUPPORT_TEXT_H

#include <cstring>
#include <string_view>

namespace ostrel {

inline bool equals(const char* a, const char* b) { return std::strcmp(a, b) == 0; }

inline bool starts_with(std::string_view text, std::string_view prefix)
{
    return text.size() >= prefix.size() && std::strncmp(text.data(), prefix.data(), prefix.size()) == 0;
}

inline bool ends_with(std::string_view text, std::string_view suffix)
{
    if (text.size() < suffix.size()) return false;
    text.remove_prefix(text.size() - suffix.size());
    return starts_with(text, suffix);
}

inline bool equals(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && starts_with(a, b);
}

// before returns the text before the first c, or the whole text if it contains no c.
inline std::string_view before(std::string_view text, char c)
{
    std::size_t length = 0;
    while (length < text.size() && text[length] != c) ++length;
    return {text.data(), length};
}

// to_lower folds only the letters A to Z; tolower would depend on the host's locale.
constexpr char to_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

// starts_with_ignoring_case reads the string only up to the first difference.
bool starts_with_ignoring_case(const char* text, const char* prefix);

}  // namespace ostrel

#endif
