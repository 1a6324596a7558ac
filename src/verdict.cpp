#include "src/verdict.h"

#include <cstring>

#include "src/support/keywords.h"
#include "src/support/number.h"
#include "src/support/report.h"

namespace ostrel {

namespace {

int judge_limits(long number, const Limits& limits)
{
    return number >= limits.min && number <= limits.max ? OSTREL_VALID : limits.otherwise;
}

}  // namespace

int code_or_refuse(int code, const char* value, const char* line, const char* check)
{
    if (code == OSTREL_VALID) return OSTREL_VALID;
        // The compiler has already checked the format in the caller.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    return refuse(code, line, check, value);
#pragma GCC diagnostic pop
}

int number_or_refuse(const char* value, const Limits& limits, const char* line, const char* check)
{
    return code_or_refuse(judge_limits(leading_number(value), limits), value, line, check);
}

int length_or_refuse(const char* value, const Limits& limits, const char* line, const char* check)
{
    return code_or_refuse(judge_limits(static_cast<long>(std::strlen(value)), limits), value, line, check);
}

int keyword_or_refuse(const char* value, const char* keywords, const char* line, const char* check)
{
    return code_or_refuse(is_one_of(value, keywords) ? OSTREL_VALID : OSTREL_INVALID_VALUE, value, line,
                          check);
}

int text_or_refuse(const char* value, Text rule, const char* line, const char* check)
{
    return code_or_refuse(validate_string(value, rule), value, line, check);
}

int rule_or_refuse(int code, const char* value, const char* line, const char* check)
{
    return code_or_refuse(code == OSTREL_INVALID ? OSTREL_INVALID_VALUE : code, value, line, check);
}

}  // namespace ostrel
