#include "rules/phrases.h"
#include "rules/datum.h"

#include <algorithm>

#include "rules/walk.h"

namespace ostrel::rules {

namespace {

using Kind = Expression::Kind;

std::string item_of(const List& list, const Meant& outer)
{
    if (!list.part.empty()) return "the " + std::string(list.part);
    if (list.separator != '\0') return outer.words == "the item" ? "the part" : "the item";
    const std::string_view blocks = list.of.text;
    return blocks.ends_with('s') ? "the " + std::string(blocks.substr(0, blocks.size() - 1)) : "the string";
}

}  // namespace

Speaker::Speaker(const Check& check, const Build& build) : check_(&check), build_(&build)
{
    slots_.resize(check.slots);
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        const Argument& argument = check.arguments[i];
        const bool is_number = argument.is_number();
        slots_[i] = {std::string(argument.name), is_number, argument.asserted.empty() && !is_number};
        slots_[i].sources = {std::string(argument.name)};
    }
    remember(check.steps);
    const std::vector<const Table*> all = tables(check);
    if (!all.empty()) table_ = all.front();
}

Meant Speaker::made_of(const Expression& expression, std::string words) const
{
    Meant result{std::move(words), is_number(expression)};
    add_sources(expression, result.sources);
    return result;
}

void Speaker::add_sources(const Expression& expression, std::set<std::string>& names) const
{
    if (const Meant* named = meant(expression)) names.insert(named->sources.begin(), named->sources.end());
    for (const Expression& one : expression.of) add_sources(one, names);
}

void Speaker::add_sources(const Condition& condition, std::set<std::string>& names) const
{
    for (const Expression& operand : condition.operands) add_sources(operand, names);
    for (const Match& match : condition.matches) add_sources(match.value, names);
    for (const Condition& part : condition.parts) add_sources(part, names);
}

void Speaker::remember(const std::vector<Step>& steps)
{
    for (const Step& step : steps) {
        if (step.kind == Step::Kind::kRemember) {
            slots_[step.slot] = made_of(*step.value, std::string(step.name));
        }
        remember(step.steps);
        remember(step.otherwise);
    }
}

void Speaker::spell_out(const std::vector<Step>& steps)
{
    for (const Step& step : steps) {
        if (step.kind == Step::Kind::kRemember) {
            slots_[step.slot] = made_of(*step.value, value(*step.value));
        }
        spell_out(step.steps);
        spell_out(step.otherwise);
    }
}

Speaker Speaker::of_other(const Condition& use) const
{
    Speaker other(*use.target, *build_);
    for (std::size_t i = 0; i < use.operands.size(); ++i) {
        const Expression& given = use.operands[i];
        const Meant* named = meant(given);
        other.slots_[i] = named != nullptr ? *named : made_of(given, value(given));
        if (named == nullptr) other.slots_[i].constant = constant(given);
        if (!use.target->arguments[i].asserted.empty()) other.slots_[i].may_be_null = false;
    }
    other.remember(use.target->steps);
    other.item_ = item_;
    other.facts_ = facts_;
    return other;
}

Speaker Speaker::of_items(const List& list) const
{
    Speaker inner = *this;
    inner.item_ = {item_of(list, item_)};
    add_sources(list.of, inner.item_.sources);
    inner.forget(inner.item_.words);
    inner.list_of_ = value(list.of);
    return inner;
}

const Meant* Speaker::meant(const Expression& expression) const
{
    if (expression.kind == Kind::kName) return &slots_[expression.slot];
    return expression.kind == Kind::kItem ? &item_ : nullptr;
}

const Expression* Speaker::constant(const Expression& expression) const
{
    if (const Meant* named = meant(expression)) return named->constant;
    const bool is_constant =
        expression.kind == Kind::kText || expression.kind == Kind::kNumber || expression.kind == Kind::kSet;
    return is_constant ? &expression : nullptr;
}

bool Speaker::is_null(const Expression& expression) const
{
    const Meant* named = meant(expression);
    return named != nullptr && named->is_null;
}

bool Speaker::reads_null(const Expression& expression) const
{
    return is_null(expression) ||
           std::ranges::any_of(expression.of, [&](const Expression& one) { return reads_null(one); });
}

bool Speaker::is_number(const Expression& expression) const
{
    if (const Meant* named = meant(expression)) return named->is_number;
    switch (expression.kind) {
        case Kind::kNumber:
        case Kind::kIndex:
        case Kind::kOffset:
        case Kind::kLength:
        case Kind::kCount:
        case Kind::kSum:
        case Kind::kLarger:
        case Kind::kDays:
            return true;
        default:
            return false;
    }
}

std::string Speaker::list(const List& list) const
{
    const std::string items = of_items(list).item().substr(4);
    std::string text = "each " + items + " of " + value(list.of);
    if (list.separator != '\0') text += " separated by " + quoted({&list.separator, 1});
    if (!list.trimmed.empty()) text += ", without surrounding " + bytes_in_words(list.trimmed);
    return text;
}

std::string Speaker::line(const Line& line) const
{
    std::string text;
    for (const Line::Part& part : line.parts) {
        if (part.value) {
            std::string_view named;
            const std::string words = value(*part.value);
            named = words;
            if (named.starts_with("the ")) named.remove_prefix(4);
            text.append("<").append(named).append(">");
            continue;
        }
        for (const char c : part.text) {
            if (c == '\n') {
                text += "\\n";
            } else {
                text += c;
            }
        }
    }
    return text;
}

std::string bytes_in_words(const Set& set) { return set == Set(" ") ? "spaces" : in_words(set); }

std::string joined_words(const std::vector<std::string>& words, std::string_view last)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0 && i + 1 == words.size()) {
            text.append(" ").append(last).append(" ");
        } else if (i > 0) {
            text += ", ";
        }
        text += words[i];
    }
    return text;
}

std::string together(const std::vector<Clause>& clauses)
{
    std::string text;
    for (std::size_t i = 0; i < clauses.size();) {
        std::vector<std::string> predicates;
        const std::string& subject = clauses[i].subject;
        do {
            predicates.push_back(clauses[i++].predicate);
        } while (!subject.empty() && i < clauses.size() && clauses[i].subject == subject);
        text += text.empty() ? "" : "; ";
        text += Clause{subject, joined_words(predicates, "and")}.text();
    }
    return text;
}

}  // namespace ostrel::rules
