#include "primitives/strings.h"

#include <ostrel/result_code.h>
#include <ostrel/strings.h>

#include <cstdlib>
#include <cstring>

namespace ostrel {

namespace {

int min_len(Text rule) { return static_cast<int>(static_cast<unsigned>(rule) & 0xFFU); }

int max_len(Text rule) { return static_cast<int>(static_cast<unsigned>(rule) >> 8U & 0xFFU); }

CharSet allowed(Text rule) { return CharSet::of_bit(static_cast<unsigned>(rule) >> 16U); }

template <typename Set>
int judge_string(const char* value, int min_len, int max_len, const Set& allowed)
{
    const char* end = first_outside(allowed, value);
    const bool all_allowed = *end == '\0';
    // A forbidden character is named only if the length is right, so the rest counts too.
    if (!all_allowed) end += std::strlen(end);
    if (const int code = validate_length(min_len, max_len, static_cast<std::size_t>(end - value));
        code != OSTREL_VALID)
        return code;
    return all_allowed ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
}

template <typename Set>
int judge_number(const char* value, int min, int max, const Set& allowed)
{
    if (!contains_all(allowed, value)) return OSTREL_FORBIDDEN_CHARACTER;
    const int number = std::atoi(value);
    return number >= min && number <= max ? OSTREL_VALID : OSTREL_OUT_OF_RANGE;
}

}  // namespace

int validate_length(int min_len, int max_len, std::size_t length)
{
    if (min_len > 0 && length < static_cast<unsigned>(min_len)) return OSTREL_TOO_SHORT;
    if (max_len < 0 || length > static_cast<unsigned>(max_len)) return OSTREL_TOO_LONG;
    return OSTREL_VALID;
}

int validate_string(const char* value, int min_len, int max_len, CharSet allowed)
{
    return judge_string(value, min_len, max_len, allowed);
}

int validate_string(const char* value, Text rule)
{
    return validate_string(value, min_len(rule), max_len(rule), allowed(rule));
}

int validate_string(std::string_view piece, Text rule)
{
    const int code = validate_length(min_len(rule), max_len(rule), piece.size());
    if (code != OSTREL_VALID) return code;
    return contains_all(allowed(rule), piece) ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
}

int validate_number(const char* value, int min, int max, CharSet allowed)
{
    return judge_number(value, min, max, allowed);
}

bool is_printable(const char* value)
{
    return value != nullptr && value[0] != '\0' && contains_all(kAsciiPrintable, value);
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
    return judge_string(value, min_len, max_len, OwnSet(charset));
}

int ValidateNum(int min, int max, const char* charset, const char* value)
{
    return judge_number(value, min, max, OwnSet(charset));
}

int countChar(const char* value, int ch) { return count(value, static_cast<char>(ch)); }
