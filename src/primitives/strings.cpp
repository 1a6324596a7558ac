#include "primitives/strings.h"

#include <ostrel/result_code.h>
#include <ostrel/strings.h>

#include <cstdlib>

namespace ostrel {

int validate_length(int min_len, int max_len, std::size_t length)
{
    if (min_len > 0 && length < static_cast<unsigned>(min_len)) return OSTREL_TOO_SHORT;
    if (max_len < 0 || length > static_cast<unsigned>(max_len)) return OSTREL_TOO_LONG;
    return OSTREL_VALID;
}

int validate_string(int min_len, int max_len, const CharSet& allowed, std::string_view text)
{
    if (const int code = validate_length(min_len, max_len, text.size()); code != OSTREL_VALID) return code;
    return allowed.contains_all(text) ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
}

int validate_number(int min, int max, const CharSet& allowed, const char* value)
{
    if (!allowed.contains_all(value)) return OSTREL_FORBIDDEN_CHARACTER;
    const int number = std::atoi(value);
    return number >= min && number <= max ? OSTREL_VALID : OSTREL_OUT_OF_RANGE;
}

bool is_printable(const char* value)
{
    return value != nullptr && value[0] != '\0' && kAsciiPrintable.contains_all(value);
}

int count(std::string_view text, char c)
{
    int occurrences = 0;
    for (const char byte : text) {
        if (byte == c) ++occurrences;
    }
    return occurrences;
}

}  // namespace ostrel

using namespace ostrel;

int ValidateString(int min_len, int max_len, const char* charset, const char* value)
{
    return validate_string(min_len, max_len, CharSet(charset), value);
}

int ValidateNum(int min, int max, const char* charset, const char* value)
{
    return validate_number(min, max, CharSet(charset), value);
}

int countChar(const char* value, int ch) { return count(value, static_cast<char>(ch)); }
