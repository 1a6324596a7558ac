#include "tests/support/hostile.h"

#include <algorithm>
#include <limits>
#include <map>

#include "rules/evaluate.h"
#include "rules/explain.h"
#include "rules/walk.h"

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
    return !argument.is_only_written() && (argument.kind == Kind::kText || argument.kind == Kind::kBuffer);
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
    if (!rules::may_not_return(*function.check)) return false;
    const auto answer = rules::evaluate(*function.check, catalogue::completed(function, values), {});
    return answer.outside == rules::Outside::kNeverReturns;
}

bool is_listed(const Function& function, int code)
{
    static std::map<std::string_view, std::vector<int>> codes;
    if (!function.check->is_verdict || code == 0) return true;
    const auto [known, is_new] = codes.try_emplace(function.name);
    if (is_new) known->second = rules::explain(*function.check, {}).codes;
    return std::ranges::find(known->second, code) != known->second.end();
}

}  // namespace ostrel::tests
