// Claims about the target that follow from conditions.

#include <algorithm>

#include "rules/acceptance.h"

namespace ostrel::rules {

namespace {

using Kind = Condition::Kind;

std::vector<std::string> texts_of(const std::vector<std::string_view>& words)
{
    return {words.begin(), words.end()};
}

std::vector<Runs> runs_of(const std::vector<Shape>& shapes)
{
    std::vector<Runs> result;
    for (const Shape& shape : shapes) {
        Runs& runs = result.emplace_back();
        for (const Group& group : shape) runs.push_back({group.set, group.least, group.most});
    }
    return result;
}

}  // namespace

Claim Acceptance::unknown(const Term& a, const Term& b)
{
    Variables variables = a.variables;
    variables.insert(b.variables.begin(), b.variables.end());
    return claims_.unknown(std::move(variables), target_);
}

Claim Acceptance::text_in(const Term& term, Language language)
{
    if (term.kind == Term::Kind::kText) {
        return languages_.contains(language, term.text) ? claims_.always() : claims_.never();
    }
    if (term.kind != Term::Kind::kPart || term.variable != target_ || term.is_integer) return unknown(term);
    for (std::size_t i = term.cuts.size(); i-- > 0;) {
        const std::optional<Language> whole = languages_.within(term.cuts[i], language);
        if (!whole) return unknown(term);
        language = *whole;
    }
    return claims_.decided(language);
}

Claim Acceptance::number_in(const Term& term, const Intervals& numbers)
{
    const Intervals before = numbers.moved(-term.number);
    switch (term.kind) {
        case Term::Kind::kNumber:
            return numbers.contains(term.number) ? claims_.always() : claims_.never();
        case Term::Kind::kLength:
        case Term::Kind::kCount: {
            Term part = term;
            part.kind = Term::Kind::kPart;
            return text_in(part, term.kind == Term::Kind::kLength ? languages_.of_length(before)
                                                                  : languages_.with_count(term.byte, before));
        }
        case Term::Kind::kPart:
            // An int is treated as its decimal representation.
            if (term.variable == target_ && term.is_integer)
                return claims_.decided(languages_.of_number(numbers));
            return text_in(term, languages_.of_number(numbers));
        case Term::Kind::kText:
            return text_in(term, languages_.of_number(numbers));
        default:
            return unknown(term);
    }
}

Claim Acceptance::condition(const Condition& condition, const Scope& scope)
{
    Claim claim = unnegated(condition, scope);
    return condition.is_negated ? claims_.negated(std::move(claim)) : claim;
}

Claim Acceptance::unnegated(const Condition& condition, const Scope& scope)
{
    const auto judged = [&] { return term(condition.operands[0], scope); };
    switch (condition.kind) {
        case Kind::kAlways:
            return claims_.always();
        case Kind::kNull: {
            const Term one = judged();
            const bool is_target = one.kind == Term::Kind::kPart && one.variable == target_;
            return is_target ? claims_.never() : unknown(one);
        }
        case Kind::kEmpty:
            return text_in(judged(), languages_.of_length({0, 0}));
        case Kind::kShorter:
        case Kind::kLonger:
        case Kind::kLength:
            return length(condition, scope);
        case Kind::kOutside:
            return outside(condition, scope);
        case Kind::kKeyword:
            return text_in(judged(), languages_.words(texts_of(condition.words), condition.ignores_case));
        case Kind::kPrefix:
            return text_in(judged(),
                           languages_.with_prefix(texts_of(condition.words), condition.ignores_case));
        case Kind::kSuffix:
        case Kind::kContains: {
            const Term part = term(condition.operands[1], scope);
            if (part.kind != Term::Kind::kText) return unknown(judged(), part);
            const Language text = languages_.text(part.text);
            if (condition.kind == Kind::kContains)
                return text_in(judged(), languages_.joined({languages_.any(), text, languages_.any()}));
            return text_in(judged(),
                           languages_.joined({languages_.byte(kEveryByte), languages_.any(), text}));
        }
        case Kind::kBelow:
        case Kind::kAbove:
        case Kind::kAmong:
        case Kind::kBetween:
        case Kind::kMultiple:
            return number(condition, scope);
        case Kind::kEqual:
            return equality(condition, scope);
        case Kind::kShape: {
            const std::optional<Language> language = languages_.of_shape(runs_of(condition.shapes));
            return language ? text_in(judged(), *language) : unknown(judged());
        }
        case Kind::kGrammar:
            return unknown(judged());
        case Kind::kRow:
            return row(condition, scope);
        case Kind::kRefusedBy:
            return refused_by(condition, scope);
        case Kind::kListed:
        case Kind::kLastItem:
            return unknown(anything());
        case Kind::kAllOf:
            return all_of(condition.parts, scope);
        case Kind::kAnyOf: {
            Claim claim = claims_.never();
            for (const Condition& part : condition.parts)
                claim = claims_.either(claim, this->condition(part, scope));
            return claim;
        }
    }
    return unknown(anything());
}

Claim Acceptance::all_of(const std::vector<Condition>& parts, const Scope& scope)
{
    Claim claim = claims_.always();
    for (const Condition& part : parts) claim = claims_.both(claim, condition(part, scope));
    return claim;
}

Claim Acceptance::equality(const Condition& condition, const Scope& scope)
{
    Term one = term(condition.operands[0], scope);
    Term other = term(condition.operands[1], scope);
    const auto is_fixed = [](const Term& term) {
        return term.kind == Term::Kind::kText || term.kind == Term::Kind::kNumber;
    };
    if (is_fixed(one)) std::swap(one, other);
    if (!is_fixed(other)) return unknown(one, other);
    const bool is_text = one.kind == Term::Kind::kText || (one.kind == Term::Kind::kPart && !one.is_integer);
    if (other.kind == Term::Kind::kText) {
        if (!is_text) return unknown(one, other);
        return text_in(one, languages_.words({other.text}, condition.ignores_case));
    }
    return number_in(one, {other.number, other.number});
}

Claim Acceptance::row(const Condition& condition, const Scope& scope)
{
    Claim claim = claims_.never();
    for (const std::vector<std::string_view>& cells : condition.table->rows) {
        Claim suits = claims_.always();
        for (const Match& match : condition.matches) {
            const Term value = term(match.value, scope);
            const std::string_view cell = cells[match.column];
            Claim one = unknown(value);
            if (match.how == Match::How::kEqual)
                one = text_in(value, languages_.words({std::string(cell)}, false));
            if (match.how == Match::How::kNumber) {
                const long long number = read_number(cell, build_.atoi).value;
                one = number_in(value, {number, number});
            }
            suits = claims_.both(suits, one);
        }
        claim = claims_.either(claim, suits);
    }
    return claim;
}

Claim Acceptance::refused_by(const Condition& condition, const Scope& scope)
{
    Scope inner;
    for (const Expression& argument : condition.operands) inner.slots.push_back(term(argument, scope));
    return claims_.negated(accepted_by(*condition.target, inner));
}

}  // namespace ostrel::rules
