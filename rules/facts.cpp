// The facts that are known at each step, which rule out impossible cases.
#include <algorithm>

#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

using Kind = Condition::Kind;

std::set<std::string_view> words_of(const Condition& condition)
{
    return {condition.words.begin(), condition.words.end()};
}

template <typename T>
T common(const T& one, const T& other)
{
    T result;
    std::ranges::set_intersection(one, other, std::inserter(result, result.end()));
    return result;
}

}  // namespace

std::optional<bool> Speaker::known(const Condition& condition) const
{
    const auto is = [&](bool holds) { return std::optional(holds != condition.is_negated); };
    switch (condition.kind) {
        case Kind::kAlways:
            return is(true);
        case Kind::kNull: {
            const Meant* judged = meant(condition.operands[0]);
            if (judged == nullptr || !judged->may_be_null) return is(false);
            return std::nullopt;
        }
        case Kind::kShorter: {
            const Expression* limit = constant(condition.operands[1]);
            if (limit != nullptr && limit->number <= 0) return is(false);
            return known_of_text(condition);
        }
        case Kind::kEmpty:
        case Kind::kLength:
        case Kind::kKeyword:
            return known_of_text(condition);
        case Kind::kEqual: {
            const Expression* to = constant(condition.operands[1]);
            const bool is_model = condition.operands[0].kind == Expression::Kind::kModel;
            if (is_model && to != nullptr) return is(build_->model == to->text);
            return std::nullopt;
        }
        case Kind::kAllOf:
        case Kind::kAnyOf: {
            const bool is_all = condition.kind == Kind::kAllOf;
            bool is_open = false;
            for (const Condition& part : condition.parts) {
                const auto one = known(part);
                if (!one) is_open = true;
                if (one && *one != is_all) return is(!is_all);
            }
            return is_open ? std::nullopt : is(is_all);
        }
        default:
            return std::nullopt;
    }
}

std::optional<bool> Speaker::known_of_text(const Condition& condition) const
{
    const auto is = [&](bool holds) { return std::optional(holds != condition.is_negated); };
    const std::string text = value(condition.operands[0]);
    const bool is_empty = facts_.empty.contains(text);
    const bool is_not_empty = facts_.not_empty.contains(text);
    if (condition.kind == Kind::kEmpty) {
        return is_empty || is_not_empty ? is(is_empty) : std::nullopt;
    }
    if (condition.kind == Kind::kLength) {
        return is_empty ? is(std::ranges::find(condition.numbers, 0) != condition.numbers.end())
                        : std::nullopt;
    }
    if (condition.kind == Kind::kShorter) {
        const Expression* limit = constant(condition.operands[1]);
        if (limit != nullptr && limit->number == 1 && is_not_empty) return is(false);
        return limit != nullptr && is_empty ? is(true) : std::nullopt;
    }
    const auto words = facts_.words.find(text);
    if (words == facts_.words.end() || condition.ignores_case) return std::nullopt;
    const std::size_t shared = common(words->second, words_of(condition)).size();
    if (shared > 0 && shared < words->second.size()) return std::nullopt;
    return is(shared > 0);
}

// learn also concludes that a string is not empty if it has a minimum length or is read as a number above 0.
void Speaker::learn(const Condition& condition, bool holds)
{
    holds = holds != condition.is_negated;
    switch (condition.kind) {
        case Kind::kEmpty:
            (holds ? facts_.empty : facts_.not_empty).insert(value(condition.operands[0]));
            break;
        case Kind::kShorter:
        case Kind::kBelow: {
            const Expression* limit = constant(condition.operands[1]);
            const bool is_text = condition.kind == Kind::kShorter || !is_number(condition.operands[0]);
            if (!holds && is_text && limit != nullptr && limit->number > 0)
                facts_.not_empty.insert(value(condition.operands[0]));
            break;
        }
        case Kind::kKeyword: {
            if (condition.ignores_case) break;
            const auto known = facts_.words.find(value(condition.operands[0]));
            if (known == facts_.words.end()) {
                if (holds) facts_.words.emplace(value(condition.operands[0]), words_of(condition));
            } else if (holds) {
                known->second = common(known->second, words_of(condition));
            } else {
                for (const std::string_view word : condition.words) known->second.erase(word);
            }
            break;
        }
        case Kind::kAllOf:
        case Kind::kAnyOf:
            if ((condition.kind == Kind::kAllOf) != holds) break;
            for (const Condition& part : condition.parts) learn(part, holds);
            break;
        case Kind::kRefusedBy: {
            if (holds) break;
            Speaker other = of_other(condition);
            for (const Step& step : condition.target->steps) {
                if (step.kind == Step::Kind::kReads) continue;
                if (step.kind != Step::Kind::kRefuse) break;
                other.learn(step.condition, false);
            }
            facts_ = other.facts_;
            break;
        }
        default:
            break;
    }
}

void Speaker::forget(const Step& step)
{
    if (step.kind == Step::Kind::kRemember) forget(std::string(step.name));
    for (const Write& write : step.writes) forget(value(write.target));
    for (const auto* inner : {&step.steps, &step.otherwise}) {
        for (const Step& one : *inner) forget(one);
    }
}

void Speaker::forget(const std::string& name)
{
    const auto holds_name = [&](const std::string& text) { return text.find(name) != std::string::npos; };
    std::erase_if(facts_.empty, holds_name);
    std::erase_if(facts_.not_empty, holds_name);
    std::erase_if(facts_.words, [&](const auto& one) { return holds_name(one.first); });
}

void Speaker::meet(const Speaker& other)
{
    facts_.empty = common(facts_.empty, other.facts_.empty);
    facts_.not_empty = common(facts_.not_empty, other.facts_.not_empty);
    std::erase_if(facts_.words, [&](const auto& one) { return !other.facts_.words.contains(one.first); });
    for (auto& [text, words] : facts_.words) {
        const auto& others = other.facts_.words.at(text);
        words.insert(others.begin(), others.end());
    }
}

}  // namespace ostrel::rules
