#include "catalogue/catalogue.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <utility>

#include "catalogue/entry.h"
#include "rules/rules.h"

namespace ostrel::catalogue {

// A buffer may be described as several texts.
Function entry(const char* name, std::vector<Kind> kinds, const void* address,
               int (*invoke)(std::span<const Raw>))
{
    const rules::Check* check = rules::find(name);
    if (check == nullptr) throw std::logic_error(std::string("no description of ") + name);
    Function function{name, "", {}, check, address, invoke};
    for (const rules::Argument& argument : check->arguments) {
        const std::size_t place = function.arguments.size();
        const bool is_buffer = place < kinds.size() && kinds[place] == Kind::kBuffer;
        if (is_buffer && argument.kind == Kind::kBlocks) kinds[place] = Kind::kBlocks;
        function.arguments.push_back({argument.name, argument.kind, argument.blocks, argument.block_size,
                                      argument.is_output || argument.kind == Kind::kIntegerOut});
    }
    if (!std::ranges::equal(kinds, function.arguments, {}, {}, &Argument::kind)) {
        throw std::logic_error(std::string("the description does not suit the declaration of ") + name);
    }
    return function;
}

const std::vector<Function>& functions()
{
    static const std::vector<Function> all = [] {
        std::vector<Function> result;
        for (Family& family : families()) {
            for (Function& function : family.functions) {
                function.family = family.name;
                result.push_back(std::move(function));
            }
        }
        return result;
    }();
    return all;
}

const Function* find(std::string_view name)
{
    static const auto by_name = [] {
        std::unordered_map<std::string_view, const Function*> all;
        for (const Function& function : functions()) all.emplace(function.name, &function);
        return all;
    }();
    const auto found = by_name.find(name);
    return found == by_name.end() ? nullptr : found->second;
}

std::vector<Value> completed(const Function& function, std::span<const Value> given)
{
    if (given.size() == function.arguments.size()) return {given.begin(), given.end()};
    std::vector<Value> values;
    auto next = given.begin();
    for (const Argument& argument : function.arguments) {
        if (!argument.output_only) {
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
