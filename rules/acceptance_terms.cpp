// Terms for expressions whose arguments are unknown.
#include "rules/acceptance.h"

namespace ostrel::rules {

using Kind = Expression::Kind;

Term Acceptance::anything() const
{
    Variables all;
    for (std::size_t i = 0; i < variables_; ++i) all.insert(i);
    return unknown_term(std::move(all));
}

Term Acceptance::unknown_of(const Expression& expression, const Scope& scope)
{
    Variables variables;
    for (const Expression& operand : expression.of) {
        const Term one = term(operand, scope);
        variables.insert(one.variables.begin(), one.variables.end());
    }
    return unknown_term(std::move(variables));
}

Term Acceptance::term(const Expression& expression, const Scope& scope)
{
    switch (expression.kind) {
        case Kind::kName: {
            const Term& slot = scope.slots[expression.slot];
            return slot.kind == Term::Kind::kUnset ? anything() : slot;
        }
        case Kind::kText:
            return term_of(expression.text);
        case Kind::kNumber:
            return term_of(expression.number);
        case Kind::kSet: {
            Term set{Term::Kind::kSet};
            set.set = expression.set;
            return set;
        }
        case Kind::kModel:
            return term_of(build_.model);
        case Kind::kAccountRealm:
            return term_of(build_.account_realm);
        case Kind::kSetupRealm:
            return term_of(build_.setup_realm);
        case Kind::kItem:
            return scope.item;
        case Kind::kBeforeFirst:
        case Kind::kBeforeLast:
        case Kind::kAfterFirst:
        case Kind::kAfterLast:
        case Kind::kThroughLast:
            return cut(expression, scope);
        case Kind::kSlice:
            return slice(expression, scope);
        case Kind::kLength:
        case Kind::kCount:
            return measure(expression, scope);
        case Kind::kSum:
            return sum(expression, scope);
        case Kind::kJoined:
        case Kind::kConverted:
        case Kind::kLarger:
            return unknown_of(expression, scope);
        case Kind::kDays: {
            Term days = unknown_of(expression, scope);
            days.kind = Term::Kind::kDays;
            for (const Expression& operand : expression.of) days.of.push_back(term(operand, scope));
            return days;
        }
        default:
            return anything();
    }
}

Term Acceptance::cut(const Expression& expression, const Scope& scope)
{
    Term whole = term(expression.of[0], scope);
    if (whole.kind != Term::Kind::kPart || whole.is_integer) return unknown_of(expression, scope);
    whole.cuts.push_back({expression.kind, std::string(expression.of[1].text)});
    return whole;
}

Term Acceptance::slice(const Expression& expression, const Scope& scope)
{
    Term whole = term(expression.of[0], scope);
    const Term offset = term(expression.of[1], scope);
    const Term count = expression.of.size() < 3 ? term_of(-1) : term(expression.of[2], scope);
    const bool is_fixed =
        offset.kind == Term::Kind::kNumber && count.kind == Term::Kind::kNumber && offset.number >= 0;
    if (whole.kind != Term::Kind::kPart || whole.is_integer || !is_fixed)
        return unknown_of(expression, scope);
    const std::size_t size = count.number < 0 ? Languages::kMany : static_cast<std::size_t>(count.number);
    whole.cuts.push_back({Kind::kSlice, {}, static_cast<std::size_t>(offset.number), size});
    return whole;
}

Term Acceptance::measure(const Expression& expression, const Scope& scope)
{
    Term text = term(expression.of[0], scope);
    if (text.kind == Term::Kind::kText && expression.kind == Kind::kLength)
        return term_of(static_cast<long long>(text.text.size()));
    if (text.kind != Term::Kind::kPart || text.is_integer) return unknown_of(expression, scope);
    text.kind = Term::Kind::kLength;
    if (expression.kind == Kind::kLength) return text;
    const Term byte = term(expression.of[1], scope);
    if (byte.kind != Term::Kind::kText || byte.text.empty()) return unknown_of(expression, scope);
    text.kind = Term::Kind::kCount;
    text.byte = byte.text.front();
    return text;
}

// sum adds literal numbers to at most one other term.
Term Acceptance::sum(const Expression& expression, const Scope& scope)
{
    Term result = term_of(0);
    for (const Expression& operand : expression.of) {
        const Term one = term(operand, scope);
        const bool is_measure = one.kind == Term::Kind::kLength || one.kind == Term::Kind::kCount;
        if (one.kind == Term::Kind::kNumber) {
            result.number += one.number;
        } else if (is_measure && result.kind == Term::Kind::kNumber) {
            const long long so_far = result.number;
            result = one;
            result.number += so_far;
        } else {
            return unknown_of(expression, scope);
        }
    }
    return result;
}

}  // namespace ostrel::rules
