// The size that a buffer needs in a call.
#include "rules/run.h"

namespace ostrel::rules {

std::optional<std::size_t> room(const Check& check, std::size_t argument, std::span<const Value> values)
{
    const std::optional<Expression>& formula = check.arguments.at(argument).room;
    if (!formula) return std::nullopt;
    const Build build;
    Answer answer;
    return Run(check, build, nullptr, answer).size(*formula, values);
}

std::optional<std::size_t> Run::size(const Expression& formula, std::span<const Value> values)
{
    Frame frame = called_with(values);
    try {
        return static_cast<std::size_t>(number(formula, frame));
    } catch (const Ended&) {
        return std::nullopt;
    }
}

}  // namespace ostrel::rules
