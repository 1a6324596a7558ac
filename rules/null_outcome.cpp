#include "rules/null_outcome.h"

#include <algorithm>
#include <set>
#include <utility>

namespace ostrel::rules {

namespace {

using Outcomes = std::set<NullOutcome>;

// Truth says how a condition can come out. It ends the call where it reads NULL.
struct Truth {
    bool can_hold = false;
    bool can_fail = false;
    Outcomes ends = {};
};

// Path says how steps can come out.
struct Path {
    Outcomes ends = {};
    bool goes_on = false;
};

// Walk knows which names hold NULL; everything else may be anything.
class Walk {
 public:
    Path follow(const Check& check, std::vector<bool> nulls)
    {
        nulls.resize(check.slots);
        std::swap(nulls_, nulls);
        Path path;
        for (std::size_t i = 0; i < check.arguments.size(); ++i) {
            if (nulls_[i] && !check.arguments[i].asserted.empty()) path.ends.insert(NullOutcome::kAssertion);
        }
        if (path.ends.empty()) path = follow(check.steps);
        if (path.goes_on) path.ends.insert(NullOutcome::kAccepted);
        std::swap(nulls_, nulls);
        return path;
    }

 private:
    Path follow(const std::vector<Step>& steps)
    {
        Path result{{}, true};
        for (const Step& step : steps) {
            if (!result.goes_on) break;
            const Path next = follow(step);
            result.ends.insert(next.ends.begin(), next.ends.end());
            result.goes_on = next.goes_on;
        }
        return result;
    }

    Path follow(const Step& step)
    {
        using Kind = Step::Kind;
        switch (step.kind) {
            case Kind::kForEach: {
                if (reads(step.list->of)) return ended(NullOutcome::kFault);
                Path body = follow(step.steps);
                body.goes_on = true;
                return body;
            }
            case Kind::kRemember: {
                const bool is_name = step.value->kind == Expression::Kind::kName;
                if (!is_name && reads(*step.value)) return ended(NullOutcome::kFault);
                nulls_[step.slot] = is_name && reads(*step.value);
                return {{}, true};
            }
            case Kind::kReads:
                if (!reads(*step.value)) return {{}, true};
                return ended(step.name.empty() ? NullOutcome::kFault : NullOutcome::kAssertion);
            default:
                break;
        }
        const Truth truth = judge(step.condition);
        Path result{truth.ends, truth.can_fail};
        if (!truth.can_hold) {
            if (step.kind == Kind::kWhen && truth.can_fail) add(result, follow(step.otherwise), false);
            return result;
        }
        switch (step.kind) {
            case Kind::kWhen: {
                const std::vector<bool> before = nulls_;
                const Path held = follow(step.steps);
                const std::vector<bool> after = std::exchange(nulls_, before);
                const Path failed = truth.can_fail ? follow(step.otherwise) : Path{};
                if (!failed.goes_on) nulls_ = after;
                result.goes_on = false;
                add(result, held, true);
                add(result, failed, true);
                // A name that is NULL in one of the cases alone is not followed further.
                if (result.goes_on && nulls_ != after) result.ends.insert(NullOutcome::kDepends);
                return result;
            }
            case Kind::kNeverReturns:
                return result;
            default:
                break;
        }
        if (acts_on_null(step)) {
            result.ends.insert(NullOutcome::kFault);
        } else if (step.kind == Kind::kRefuse || step.kind == Kind::kAccept) {
            result.ends.insert(outcome_of(step.code));
        } else {
            result.goes_on = true;
        }
        return result;
    }

    static NullOutcome outcome_of(const Code& code)
    {
        const bool can_be_zero =
            std::ranges::any_of(code.exchanges, [](auto one) { return one.second == 0; });
        if (code.is_its) return can_be_zero ? NullOutcome::kDepends : NullOutcome::kRefused;
        if (code.number.kind != Expression::Kind::kNumber) return NullOutcome::kDepends;
        return code.number.number == 0 ? NullOutcome::kAccepted : NullOutcome::kRefused;
    }

    static Path ended(NullOutcome outcome) { return {{outcome}, false}; }

    static void add(Path& path, const Path& other, bool or_goes_on)
    {
        path.ends.insert(other.ends.begin(), other.ends.end());
        path.goes_on = or_goes_on ? path.goes_on || other.goes_on : other.goes_on;
    }

    // acts_on_null tells whether what the step prints, writes or answers reads NULL.
    bool acts_on_null(const Step& step)
    {
        const auto prints = [&](const Line& line) {
            return std::ranges::any_of(
                line.parts, [&](const Line::Part& part) { return part.value && reads(*part.value); });
        };
        const auto writes = [&](const Write& write) { return reads(write.target) || reads(write.value); };
        return std::ranges::any_of(step.lines, prints) || std::ranges::any_of(step.writes, writes) ||
               reads(step.code.number);
    }

    bool reads(const Expression& expression)
    {
        if (expression.kind == Expression::Kind::kName) return nulls_[expression.slot];
        return std::ranges::any_of(expression.of, [&](const Expression& one) { return reads(one); });
    }

    Truth judge(const Condition& condition)
    {
        Truth truth = unnegated(condition);
        if (condition.is_negated) std::swap(truth.can_hold, truth.can_fail);
        return truth;
    }

    Truth unnegated(const Condition& condition)
    {
        using Kind = Condition::Kind;
        switch (condition.kind) {
            case Kind::kAlways:
                return {true, false};
            case Kind::kNull:
                if (condition.operands[0].kind == Expression::Kind::kName && reads(condition.operands[0]))
                    return {true, false};
                return {reads_no_null(condition)};
            case Kind::kAllOf:
            case Kind::kAnyOf:
                return parts(condition);
            case Kind::kRefusedBy: {
                std::vector<bool> nulls;
                for (const Expression& one : condition.operands) {
                    const bool is_null = reads(one);
                    if (is_null && one.kind != Expression::Kind::kName)
                        return {false, false, {NullOutcome::kFault}};
                    nulls.push_back(is_null);
                }
                Outcomes outcomes = follow(*condition.target, std::move(nulls)).ends;
                const bool refuses = outcomes.erase(NullOutcome::kRefused) > 0;
                const bool accepts = outcomes.erase(NullOutcome::kAccepted) > 0;
                return {refuses, accepts, std::move(outcomes)};
            }
            default:
                return reads_no_null(condition);
        }
    }

    Truth reads_no_null(const Condition& condition)
    {
        const bool is_read =
            std::ranges::any_of(condition.operands, [&](const Expression& one) { return reads(one); }) ||
            std::ranges::any_of(condition.matches, [&](const Match& match) { return reads(match.value); });
        return is_read ? Truth{false, false, {NullOutcome::kFault}} : Truth{true, true};
    }

    // parts are judged until one decides.
    Truth parts(const Condition& condition)
    {
        const bool needs_all = condition.kind == Condition::Kind::kAllOf;
        Truth result{needs_all, !needs_all};
        for (const Condition& part : condition.parts) {
            const Truth next = judge(part);
            result.ends.insert(next.ends.begin(), next.ends.end());
            if (needs_all) {
                result.can_fail = result.can_fail || next.can_fail;
                result.can_hold = next.can_hold;
                if (!next.can_hold) break;
            } else {
                result.can_hold = result.can_hold || next.can_hold;
                result.can_fail = next.can_fail;
                if (!next.can_fail) break;
            }
        }
        return result;
    }

    std::vector<bool> nulls_;
};

}  // namespace

NullOutcome null_outcome_of(const Check& check, std::size_t argument)
{
    std::vector<bool> nulls(check.arguments.size());
    nulls[argument] = true;
    const Outcomes ends = Walk().follow(check, std::move(nulls)).ends;
    return ends.size() == 1 ? *ends.begin() : NullOutcome::kDepends;
}

}  // namespace ostrel::rules
