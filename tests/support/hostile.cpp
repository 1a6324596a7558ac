#include "tests/support/hostile.h"

#include <limits>

namespace ostrel::tests {

using catalogue::Argument;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;

std::string repeated(std::string_view part, std::size_t size)
{
    std::string text;
    while (text.size() < size) text += part;
    return text;
}

bool is_text(const Argument& argument)
{
    return !argument.output_only && (argument.kind == Kind::kText || argument.kind == Kind::kBuffer);
}

Value neutral(const Argument& argument, long long number)
{
    switch (argument.kind) {
        case Kind::kText:
        case Kind::kBuffer:
            return std::string();
        case Kind::kBlocks:
            return std::vector<std::string>(argument.blocks);
        case Kind::kUnsigned:
            return number < 0 ? std::numeric_limits<unsigned>::max() : number;
        case Kind::kInteger:
        case Kind::kIntegerOut:
            return number;
    }
    return nullptr;
}

std::vector<Value> widest(const Function& function)
{
    std::vector<Value> values;
    Value* last_number = nullptr;
    values.reserve(function.arguments.size());
    for (const Argument& argument : function.arguments) {
        values.push_back(neutral(argument, 0));
        const bool is_number = argument.kind == Kind::kInteger || argument.kind == Kind::kUnsigned;
        if (is_number) last_number = &values.back();
    }
    if (last_number != nullptr) *last_number = static_cast<long long>(std::numeric_limits<int>::max());
    return values;
}

bool never_returns(const Function& function, const std::vector<Value>& values)
{
    if (function.name != "PARAM_check_ui2_value" && function.name != "PARAM_check_ui4_value") return false;
    const auto* text = std::get_if<std::string>(values.data());
    return text != nullptr && !text->empty() && text->front() >= '0' && text->front() <= '9';
}

bool is_listed(const Function& function, int code)
{
    if (!function.is_verdict || code == 0) return true;
    for (const catalogue::Code& listed : function.codes) {
        if (listed.code == code) return true;
    }
    return false;
}

}  // namespace ostrel::tests
