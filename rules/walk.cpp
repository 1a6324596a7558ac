#include "rules/walk.h"

#include <algorithm>

namespace ostrel::rules {

namespace {

bool prints(const Condition& condition)
{
    for (const Shape& shape : condition.shapes) {
        for (const Group& group : shape) {
            if (!group.lines.empty()) return true;
        }
    }
    if (condition.target != nullptr && prints(*condition.target)) return true;
    return std::ranges::any_of(condition.parts, [](const Condition& part) { return prints(part); });
}

bool prints(const std::vector<Step>& steps)
{
    return std::ranges::any_of(steps, [](const Step& step) {
        return !step.lines.empty() || prints(step.condition) || prints(step.steps) || prints(step.otherwise);
    });
}

bool may_not_return(const std::vector<Step>& steps)
{
    return std::ranges::any_of(steps, [](const Step& step) {
        const Check* other = step.condition.target;
        return step.kind == Step::Kind::kNeverReturns || may_not_return(step.steps) ||
               may_not_return(step.otherwise) || (other != nullptr && may_not_return(other->steps));
    });
}

bool asks_driver(const Condition& condition)
{
    return condition.kind == Condition::Kind::kListed ||
           std::ranges::any_of(condition.parts, [](const auto& part) { return asks_driver(part); });
}

bool asks_driver(const std::vector<Step>& steps)
{
    return std::ranges::any_of(steps, [](const Step& step) {
        const Check* other = step.condition.target;
        return asks_driver(step.condition) || asks_driver(step.steps) || asks_driver(step.otherwise) ||
               (other != nullptr && asks_driver(other->steps));
    });
}

void add_tables(const std::vector<Step>& steps, std::vector<const Table*>& all)
{
    for (const Step& step : steps) {
        const Table* table = step.condition.table;
        if (table != nullptr && std::ranges::find(all, table) == all.end()) all.push_back(table);
        add_tables(step.steps, all);
        add_tables(step.otherwise, all);
    }
}

template <typename T>
void add(std::vector<T>& all, T one)
{
    if (std::ranges::find(all, one) == all.end()) all.push_back(std::move(one));
}

// Keywords finds the words for one argument. Slots that are not known to contain this argument are ignored.
class Keywords {
 public:
    Keywords(const Check& check, std::size_t argument, const Build& build)
        : is_argument_(check.slots), build_(build)
    {
        is_argument_[argument] = true;
        walk(check.steps);
    }

    std::vector<std::string> words;        // from steps that refuse or accept
    std::vector<std::string> other_words;  // from conditions that distinguish cases

 private:
    using Kind = Condition::Kind;

    // is_model returns nullopt if the condition does not test the product model.
    [[nodiscard]] std::optional<bool> is_model(const Condition& condition) const
    {
        const bool asks =
            condition.kind == Kind::kEqual && condition.operands[0].kind == Expression::Kind::kModel;
        if (!asks) return std::nullopt;
        return (condition.operands[1].text == build_.model) != condition.is_negated;
    }

    [[nodiscard]] bool is_it(const Expression& expression) const
    {
        if (expression.kind == Expression::Kind::kItem) return item_is_argument_;
        return expression.kind == Expression::Kind::kName && is_argument_[expression.slot];
    }

    void walk(const std::vector<Step>& steps)
    {
        for (const Step& step : steps) {
            const bool refuses = step.kind == Step::Kind::kRefuse || step.kind == Step::Kind::kSkip;
            const bool judges = refuses || step.kind == Step::Kind::kAccept;
            look(step.condition, judges ? std::optional(!refuses) : std::nullopt);
            const bool outer = item_is_argument_;
            if (step.list) item_is_argument_ = is_it(step.list->of);
            const auto known = is_model(step.condition);
            if (known.value_or(true)) walk(step.steps);
            item_is_argument_ = outer;
            if (!known.value_or(false)) walk(step.otherwise);
        }
    }

    // look adds the words that a condition allows, given that it must hold or must fail. If holds is not set,
    // the condition only distinguishes cases, and look adds all its words.
    void look(const Condition& condition, std::optional<bool> holds)
    {
        for (const Condition& part : condition.parts) look(part, holds);
        if (condition.kind == Kind::kRefusedBy) look_into(condition);
        auto& found = holds ? words : other_words;
        for (const Match& match : condition.matches) {
            if (match.how != Match::How::kEqual || !is_it(match.value)) continue;
            for (const auto& row : condition.table->rows) add(found, std::string(row[match.column]));
        }
        if (condition.operands.empty() || !is_it(condition.operands[0])) return;
        if (holds && *holds == condition.is_negated) return;
        if (condition.kind == Kind::kKeyword) {
            for (const std::string_view word : condition.words) add(found, std::string(word));
        } else if (condition.kind == Kind::kAmong) {
            for (const long long number : condition.numbers) add(found, std::to_string(number));
        } else if (condition.kind == Kind::kEqual) {
            const Expression& to = condition.operands[1];
            if (to.kind == Expression::Kind::kText) add(found, std::string(to.text));
            if (to.kind == Expression::Kind::kNumber) add(found, std::to_string(to.number));
        }
    }

    void look_into(const Condition& use)
    {
        std::vector<bool> inner(use.target->slots);
        for (std::size_t i = 0; i < use.operands.size(); ++i) inner[i] = is_it(use.operands[i]);
        std::swap(inner, is_argument_);
        const bool outer = item_is_argument_;
        item_is_argument_ = false;
        walk(use.target->steps);
        item_is_argument_ = outer;
        std::swap(inner, is_argument_);
    }

    std::vector<bool> is_argument_;
    const Build& build_;
    bool item_is_argument_ = false;
};

}  // namespace

bool prints(const Check& check) { return prints(check.steps); }

bool may_not_return(const Check& check) { return may_not_return(check.steps); }

bool asks_driver(const Check& check) { return asks_driver(check.steps); }

std::vector<const Table*> tables(const Check& check)
{
    std::vector<const Table*> all;
    add_tables(check.steps, all);
    return all;
}

bool is_written(const Argument& argument)
{
    return argument.kind == Argument::Kind::kBuffer || argument.kind == Argument::Kind::kBlocks ||
           argument.kind == Argument::Kind::kIntegerOut;
}

std::vector<std::string> keywords(const Check& check, std::size_t argument, const Build& build)
{
    const Keywords found(check, argument, build);
    std::vector<std::string> words = found.words.empty() ? found.other_words : found.words;
    std::erase(words, "");
    return words;
}

}  // namespace ostrel::rules
