#include "catalogue/function.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "rules/rules.h"

namespace ostrel::catalogue {

// A declaration does not show whether a buffer contains several strings, so described accepts either.
Function described(std::string_view name, std::string_view family, std::vector<Kind> kinds,
                   const void* address, int (*invoke)(std::span<const Raw>))
{
    const rules::Check* check = rules::find(name);
    if (check == nullptr) throw std::logic_error("there is no description of " + std::string(name));
    const std::vector<Argument>& arguments = check->arguments;
    for (std::size_t i = 0; i < std::min(kinds.size(), arguments.size()); ++i) {
        if (kinds[i] == Kind::kBuffer && arguments[i].kind == Kind::kBlocks) kinds[i] = Kind::kBlocks;
    }
    if (!std::ranges::equal(kinds, arguments, {}, {}, &Argument::kind)) {
        throw std::logic_error("the description of " + std::string(name) + " does not match its declaration");
    }
    return {name, family, arguments, check, address, invoke};
}

std::vector<Value> completed(const Function& function, std::span<const Value> given)
{
    if (given.size() == function.arguments.size()) return {given.begin(), given.end()};
    std::vector<Value> values;
    auto next = given.begin();
    for (const Argument& argument : function.arguments) {
        if (!argument.is_only_written()) {
            values.push_back(*next++);
        } else if (argument.kind == Kind::kIntegerOut) {
            values.emplace_back(kUnwritten);
        } else {
            values.emplace_back(std::string());
        }
    }
    return values;
}

std::size_t room_of(const Function& function, std::size_t argument, std::span<const Value> values)
{
    if (function.arguments[argument].kind == Kind::kBlocks) return function.arguments[argument].block_size;
    const auto* text = std::get_if<std::string>(&values[argument]);
    const std::size_t own = text == nullptr ? 0 : text->size() + 1;
    return std::max(own, rules::room(*function.check, argument, values).value_or(0));
}

}  // namespace ostrel::catalogue
