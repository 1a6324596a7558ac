#include "support/text.h"

#include <cstdint>

namespace ostrel {

namespace {

char to_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

constexpr std::uint32_t kHashBase = 0x01000193;

std::uint32_t byte_of(char c) { return static_cast<unsigned char>(c); }

}  // namespace

// A hash of as many bytes as the part has rolls along the text, and only where it equals the part's are the
// two compared. strstr would need a terminator behind the part.
bool contains(std::string_view text, std::string_view part)
{
    const std::size_t length = part.size();
    if (length > text.size()) return false;
    std::uint32_t wanted = 0;
    std::uint32_t rolling = 0;
    std::uint32_t weight = 1;  // of the byte that leaves the hash
    for (std::size_t i = 0; i < length; ++i) {
        wanted = wanted * kHashBase + byte_of(part[i]);
        rolling = rolling * kHashBase + byte_of(text[i]);
        weight *= kHashBase;
    }
    for (;;) {
        if (rolling == wanted && starts_with(text, part)) return true;
        if (length == text.size()) return false;
        rolling = rolling * kHashBase + (byte_of(text[length]) - weight * byte_of(text[0]));
        text.remove_prefix(1);
    }
}

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
