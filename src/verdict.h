// Functions for rules that many checks share. Each returns OSTREL_VALID if the rule accepts the value.
// Otherwise it prints the line with the name of the check and the value, flushes every output stream and
// returns the result code.
#ifndef OSTREL_SRC_VERDICT_H
#define OSTREL_SRC_VERDICT_H

#include <ostrel/result_code.h>

#include "src/strings.h"

namespace ostrel {

// line returns the format unchanged. It makes the compiler check the format against the arguments with which
// it will be printed, which are the name of the check and the value. A format may omit the value.
[[gnu::format(printf, 1, 2), gnu::always_inline]] inline const char* line(const char* format, ...)
{
    return format;
}

// Limits contains the inclusive limits of a number or a length, and the code for a value outside them.
struct Limits {
    int min;
    int max;
    int otherwise = OSTREL_INVALID_VALUE;
};

// code_or_refuse takes the result code of a rule that the caller has applied.
int code_or_refuse(int code, const char* value, const char* line, const char* check = __builtin_FUNCTION());

// number_or_refuse checks the number that atoi reads.
int number_or_refuse(const char* value, const Limits& limits, const char* line,
                     const char* check = __builtin_FUNCTION());

int length_or_refuse(const char* value, const Limits& limits, const char* line,
                     const char* check = __builtin_FUNCTION());

// keyword_or_refuse returns OSTREL_INVALID_VALUE for a value that is not one of the keywords.
int keyword_or_refuse(const char* value, const char* keywords, const char* line,
                      const char* check = __builtin_FUNCTION());

// text_or_refuse returns the code that validate_string returns.
int text_or_refuse(const char* value, Text rule, const char* line, const char* check = __builtin_FUNCTION());

// rule_or_refuse does the same as code_or_refuse, but returns OSTREL_INVALID_VALUE instead of OSTREL_INVALID.
int rule_or_refuse(int code, const char* value, const char* line, const char* check = __builtin_FUNCTION());

}  // namespace ostrel

#endif
