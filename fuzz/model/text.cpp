#include "fuzz/model/text.h"

#include <cstdarg>
#include <cstdio>
#include <limits>

namespace ostrel::model {

std::string format(const char* form, ...)
{
    std::va_list list;
    va_start(list, form);
    std::va_list again;
    va_copy(again, list);
    std::string result(static_cast<std::size_t>(std::vsnprintf(nullptr, 0, form, list)), '\0');
    std::vsnprintf(result.data(), result.size() + 1, form, again);
    va_end(again);
    va_end(list);
    return result;
}

bool is_null(const Value& value) { return std::holds_alternative<std::nullptr_t>(value); }

const std::string& text(const Value& value) { return std::get<std::string>(value); }

int number(const Value& value) { return static_cast<int>(std::get<long long>(value)); }

Answer undefined()
{
    Answer answer;
    answer.undefined = true;
    return answer;
}

Answer silent(int code)
{
    Answer answer;
    answer.code = code;
    return answer;
}

Answer printed(int code, std::string out)
{
    Answer answer;
    answer.code = code;
    answer.out = std::move(out);
    return answer;
}

Number read_number(std::string_view text)
{
    constexpr std::string_view kWhite = " \t\n\v\f\r";
    constexpr std::string_view kDigits = "0123456789";
    std::size_t i = 0;
    while (i < text.size() && kWhite.find(text[i]) != std::string_view::npos) ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    long long value = 0;
    for (; i < text.size() && kDigits.find(text[i]) != std::string_view::npos; ++i) {
        value = value * 10 + (text[i] - '0');
        if (value > std::numeric_limits<int>::max() + (negative ? 1LL : 0LL)) return {0, true};
    }
    return {static_cast<int>(negative ? -value : value), false};
}

}  // namespace ostrel::model
