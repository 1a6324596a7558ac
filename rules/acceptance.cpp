// Derivation of the values for which a check's steps return 0.
#include "rules/acceptance.h"

#include <algorithm>

namespace ostrel::rules {

Claim Acceptance::claim()
{
    Scope scope;
    scope.is_called = true;
    for (std::size_t i = 0; i < check_.arguments.size(); ++i) {
        switch (check_.arguments[i].kind) {
            case Argument::Kind::kText:
            case Argument::Kind::kBuffer:
                scope.slots.push_back(part_of(i));
                break;
            case Argument::Kind::kInteger:
            case Argument::Kind::kUnsigned:
                scope.slots.push_back(part_of(i, true));
                break;
            default:
                scope.slots.push_back(unknown_term({i}));
                break;
        }
    }
    return accepted_by(check_, scope);
}

Claim Acceptance::accepted_by(const Check& check, Scope& scope)
{
    scope.slots.resize(check.slots);
    const Outcome outcome = follow(check.steps, scope);
    return claims_.either(outcome.accepts, outcome.goes_on);
}

Acceptance::Outcome Acceptance::follow(const std::vector<Step>& steps, Scope& scope)
{
    Outcome result = going_on(claims_.always());
    for (const Step& step : steps) {
        const Outcome next = follow(step, scope);
        result.accepts = claims_.either(result.accepts, claims_.both(result.goes_on, next.accepts));
        result.skips = claims_.either(result.skips, claims_.both(result.goes_on, next.skips));
        result.goes_on = claims_.both(result.goes_on, next.goes_on);
    }
    return result;
}

Acceptance::Outcome Acceptance::follow(const Step& step, Scope& scope)
{
    using Kind = Step::Kind;
    switch (step.kind) {
        case Kind::kWhen:
            return choose(step, scope);
        case Kind::kForEach:
            return repeat(step, scope);
        case Kind::kRemember:
            scope.slots[step.slot] = term(*step.value, scope);
            return going_on(claims_.always());
        case Kind::kPrint:
            forget(step.writes, scope);
            return going_on(claims_.always());
        case Kind::kReads:
            return going_on(claims_.always());
        case Kind::kWrite:
            write(step, scope);
            return going_on(claims_.always());
        default:
            break;
    }
    const Claim holds = condition(step.condition, scope);
    Outcome result = going_on(claims_.negated(holds));
    if (step.kind == Kind::kSkip) {
        forget(step.writes, scope);
        result.skips = holds;
    } else if (step.kind != Kind::kNeverReturns && !step.code.is_its) {
        const Term code = term(step.code.number, scope);
        if (code.kind != Term::Kind::kNumber) {
            result.accepts = claims_.both(holds, unknown(anything()));
        } else if (code.number == 0) {
            result.accepts = holds;
        }
    } else if (step.code.is_its) {
        // If the step is reached because the other check refuses, that check's code is not 0.
        const bool has_refused =
            step.condition.kind == Condition::Kind::kRefusedBy && !step.condition.is_negated;
        const bool may_be_zero =
            std::ranges::any_of(step.code.exchanges, [](auto one) { return one.second == 0; });
        if (!has_refused || may_be_zero) result.accepts = claims_.both(holds, unknown(anything()));
    }
    return result;
}

void Acceptance::write(const Step& step, Scope& scope)
{
    if (!scope.is_called) return;
    for (const Write& one : step.writes) {
        if (one.target.kind == Expression::Kind::kItem) {
            scope.item = anything();
        } else {
            scope.slots[one.target.slot] = term(one.value, scope);
        }
    }
}

Acceptance::Outcome Acceptance::choose(const Step& step, Scope& scope)
{
    const Claim holds = condition(step.condition, scope);
    const Claim fails = claims_.negated(holds);
    Scope other = scope;
    const Outcome first = follow(step.steps, scope);
    const Outcome second = follow(step.otherwise, other);
    const auto chosen = [&](const Claim& a, const Claim& b) {
        if (a == b && a.is_decided) return a;
        const Claim where_it_holds = claims_.both(holds, a);
        return claims_.either(where_it_holds, claims_.both(fails, b));
    };
    // A value that is stored in only one of the two cases is read only in that case. Two values that are both
    // unknown may differ.
    const auto is_same = [](const Term& a, const Term& b) {
        return a == b && a.kind != Term::Kind::kUnknown && a.kind != Term::Kind::kDays;
    };
    for (std::size_t i = 0; i < scope.slots.size(); ++i) {
        if (scope.slots[i].kind == Term::Kind::kUnset) {
            scope.slots[i] = other.slots[i];
        } else if (other.slots[i].kind != Term::Kind::kUnset && !is_same(scope.slots[i], other.slots[i])) {
            scope.slots[i] = anything();
        }
    }
    if (!is_same(scope.item, other.item)) scope.item = anything();
    return {chosen(first.accepts, second.accepts), chosen(first.skips, second.skips),
            chosen(first.goes_on, second.goes_on)};
}

void Acceptance::forget(const std::vector<Write>& writes, Scope& scope)
{
    for (const Write& one : writes) {
        const bool is_item = one.target.kind == Expression::Kind::kItem;
        (is_item ? scope.item : scope.slots[one.target.slot]) = anything();
    }
}

// forget discards what is known about values that one iteration may pass to the next.
void Acceptance::forget(const std::vector<Step>& steps, Scope& scope)
{
    for (const Step& step : steps) {
        if (step.kind == Step::Kind::kRemember) scope.slots[step.slot] = anything();
        forget(step.writes, scope);
        forget(step.steps, scope);
        forget(step.otherwise, scope);
    }
}

Acceptance::Outcome Acceptance::repeat(const Step& step, Scope& scope)
{
    const Term list = term(step.list->of, scope);
    forget(step.steps, scope);
    const std::optional<Claim> all = for_items(list, step, scope);
    if (all) return going_on(*all);
    // An iteration may end the call before the remaining items are tested, so the outcome is unknown.
    return {unknown(anything()), claims_.never(), unknown(anything())};
}

std::optional<Claim> Acceptance::for_items(const Term& list, const Step& step, Scope scope)
{
    // If the separator is also trimmed, empty items are dropped, which Languages::items does not support.
    if (step.list->trimmed.contains(step.list->separator)) return std::nullopt;
    const bool is_of_target = list.kind == Term::Kind::kPart && list.variable == target_ && !list.is_integer;
    const std::size_t whole = target_;
    if (is_of_target) {
        target_ = variables_++;
        scope.item = part_of(target_);
    } else {
        scope.item = unknown_term(list.variables);
    }
    const std::size_t item = target_;
    const Outcome outcome = follow(step.steps, scope);
    target_ = whole;

    if (outcome.accepts != claims_.never()) return std::nullopt;
    Claim each = claims_.either(outcome.skips, outcome.goes_on);
    if (!is_of_target) return each;
    const auto all = [&](Language one) {
        return text_in(list, languages_.items(step.list->separator, step.list->trimmed, one));
    };
    Claim result = all(each.holds);
    if (each.is_decided) return result;
    Variables others = each.others;
    others.erase(item);
    others.insert(whole);
    return claims_.both(result, claims_.unknown(std::move(others), target_));
}

}  // namespace ostrel::rules
