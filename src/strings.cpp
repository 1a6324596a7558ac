#include "src/strings.h"

#include <ostrel/result_code.h>
#include <ostrel/strings.h>

#include <cstring>

#include "src/support/number.h"

namespace ostrel {

namespace {

int min_len(Text rule) { return static_cast<int>(static_cast<unsigned>(rule) & 0xFFU); }

int max_len(Text rule) { return static_cast<int>(static_cast<unsigned>(rule) >> 8U & 0xFFU); }

CharSet allowed(Text rule) { return CharSet{static_cast<std::uint16_t>(static_cast<unsigned>(rule) >> 16U)}; }

template <typename Set>
int judge_string(const char* value, int min_len, int max_len, Set allowed)
{
    const char* end = first_outside<Set>(allowed, value);
    // A forbidden character is reported only if the length is valid, so the remaining bytes are counted too.
    const std::size_t rest = *end == '\0' ? 0 : std::strlen(end);
    const int code = validate_length(min_len, max_len, static_cast<std::size_t>(end - value) + rest);
    if (code != OSTREL_VALID) return code;
    return rest == 0 ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
}

int judge_number(int number, int min, int max)
{
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

int validate_number(const char* value, int min, int max)
{
    const int number = read_number(value);
    return *value == '\0' ? judge_number(number, min, max) : OSTREL_FORBIDDEN_CHARACTER;
}

}  // namespace ostrel

using namespace ostrel;

int ValidateString(int min_len, int max_len, const char* charset, const char* value)
{
    return judge_string<const OwnSet&>(value, min_len, max_len, OwnSet(charset));
}

int ValidateNum(int min, int max, const char* charset, const char* value)
{
    if (!contains_all(OwnSet(charset), value)) return OSTREL_FORBIDDEN_CHARACTER;
    return judge_number(leading_number(value), min, max);
}

int countChar(const char* value, int ch)
{
    int occurrences = 0;
    for (; *value != '\0'; ++value) {
        if (*value == static_cast<char>(ch)) ++occurrences;
    }
    return occurrences;
}
