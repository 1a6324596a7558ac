// Claims that follow from limits on lengths, numbers and sets, including limits set by other arguments.
#include "rules/acceptance.h"

namespace ostrel::rules {

using Kind = Condition::Kind;

// is_limit returns true if the target is compared with another argument that is a number or a set.
bool Acceptance::is_limit(const Term& judged, const Term& limit) const
{
    return judged.variable == target_ && judged.cuts.empty() && judged.number == 0 &&
           limit.kind == Term::Kind::kPart && limit.variable != target_ && limit.cuts.empty() &&
           limit.variable < check_.arguments.size();
}

Claim Acceptance::outside(const Condition& condition, const Scope& scope)
{
    const Term judged = term(condition.operands[0], scope);
    const Term set = term(condition.operands[1], scope);
    if (set.kind == Term::Kind::kSet) return claims_.negated(text_in(judged, languages_.repeated(set.set)));
    if (set.kind == Term::Kind::kText)
        return claims_.negated(text_in(judged, languages_.repeated(Set(set.text))));
    if (judged.kind == Term::Kind::kPart && is_limit(judged, set))
        return claims_.beyond({Limit::Kind::kCharacters, set.variable});
    return unknown(judged, set);
}

Claim Acceptance::length(const Condition& condition, const Scope& scope)
{
    Term judged = term(condition.operands[0], scope);
    if (judged.kind != Term::Kind::kPart || judged.is_integer) {
        if (judged.kind != Term::Kind::kText) return unknown(judged, term(condition.operands.back(), scope));
        judged = term_of(static_cast<long long>(judged.text.size()));
    } else {
        judged.kind = Term::Kind::kLength;
    }
    if (condition.kind == Kind::kLength) return number_in(judged, Intervals::of(condition.numbers));
    const bool is_shorter = condition.kind == Kind::kShorter;
    const Term limit = term(condition.operands[1], scope);
    if (limit.kind == Term::Kind::kNumber) {
        return number_in(judged, is_shorter ? Intervals(Intervals::kLowest, limit.number - 1)
                                            : Intervals(limit.number + 1, Intervals::kHighest));
    }
    if (judged.kind == Term::Kind::kLength && limit.is_integer && is_limit(judged, limit))
        return claims_.beyond(
            {is_shorter ? Limit::Kind::kMinLength : Limit::Kind::kMaxLength, limit.variable});
    return unknown(judged, limit);
}

Claim Acceptance::number(const Condition& condition, const Scope& scope)
{
    const Term judged = term(condition.operands[0], scope);
    if (condition.kind == Kind::kAmong) return number_in(judged, Intervals::of(condition.numbers));
    if (condition.kind == Kind::kBetween)
        return number_in(judged, Intervals(condition.numbers[0], condition.numbers[1]));
    const Term limit = term(condition.operands[1], scope);
    const bool is_below = condition.kind == Kind::kBelow;
    if (condition.kind == Kind::kMultiple) {
        if (judged.kind != Term::Kind::kLength || limit.kind != Term::Kind::kNumber || limit.number < 1)
            return unknown(judged, limit);
        const auto of = static_cast<std::size_t>(limit.number);
        const auto rest =
            static_cast<std::size_t>(((-judged.number) % limit.number + limit.number) % limit.number);
        const Language one = languages_.byte(kEveryByte);
        Term part = judged;
        part.kind = Term::Kind::kPart;
        return text_in(part, languages_.joined(languages_.repeated(one, rest, rest),
                                               languages_.repeated(languages_.repeated(one, of, of), 0)));
    }
    if (limit.kind == Term::Kind::kNumber) {
        return number_in(judged, is_below ? Intervals(Intervals::kLowest, limit.number - 1)
                                          : Intervals(limit.number + 1, Intervals::kHighest));
    }
    if (limit.kind == Term::Kind::kDays && !is_below) return above_days(judged, limit);
    if (judged.kind == Term::Kind::kPart && limit.is_integer && is_limit(judged, limit))
        return claims_.beyond({is_below ? Limit::Kind::kMinimum : Limit::Kind::kMaximum, limit.variable});
    return unknown(judged, limit);
}

}  // namespace ostrel::rules
