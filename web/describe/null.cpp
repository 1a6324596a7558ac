// A check is followed with one argument NULL and nothing known of the others, through every step that it may come to.

#include "web/describe/null.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace ostrel::web {

namespace {

using rules::Check;
using rules::Condition;
using rules::Expression;
using rules::Line;
using rules::Step;
using rules::Write;

// Outcome is what may become of a condition.
struct Outcome {
    bool holds = false;
    bool fails = false;
    bool ends = false;   // it reads NULL
    bool reads = false;  // and that is not asserted against

    void add(const Outcome& other)
    {
        holds |= other.holds;
        fails |= other.fails;
        ends |= other.ends;
        reads |= other.reads;
    }
};

class Walk {
 public:
    Walk(const Check& check, std::size_t argument) : check_(check), names_{check.arguments[argument].name}
    {
        is_first_ = argument == 0;
        is_asserted_ = !check.arguments[argument].asserted.empty();
    }

    // Whether a call may answer 0, may answer something else, or may end the process.
    Outcome all()
    {
        if (is_asserted_) return {false, false, true, false};
        if (run(check_.steps, false)) outcome_.fails = true;
        return outcome_;
    }

 private:
    // is_null: it is the argument itself, which may be passed on.
    bool is_null(const Expression& expression) const
    {
        if (expression.kind != Expression::Kind::kName) return false;
        return expression.text.empty() ? is_first_ : names_.contains(expression.text);
    }

    bool reads(const Expression& expression) const
    {
        return is_null(expression) ||
               std::ranges::any_of(expression.of, [this](const auto& part) { return reads(part); });
    }

    bool reads(const std::vector<Line>& lines) const
    {
        return std::ranges::any_of(lines, [this](const Line& line) {
            return std::ranges::any_of(line.parts,
                                       [this](const auto& part) { return part.value && reads(*part.value); });
        });
    }

    // The parts of a condition are judged from left to right, until one decides.
    Outcome of_parts(const Condition& condition) const
    {
        const bool is_all = condition.kind == Condition::Kind::kAllOf;
        Outcome result;
        for (const Condition& part : condition.parts) {
            const Outcome one = of(part);
            result.ends |= one.ends;
            result.reads |= one.reads;
            (is_all ? result.fails : result.holds) |= is_all ? one.fails : one.holds;
            if (!(is_all ? one.holds : one.fails)) return result;
        }
        (is_all ? result.holds : result.fails) = true;
        return result;
    }

    Outcome of_other_check(const Condition& condition) const
    {
        Outcome result;
        bool is_passed = false;
        for (std::size_t i = 0; i < condition.operands.size(); ++i) {
            if (!is_null(condition.operands[i])) continue;
            is_passed = true;
            result.add(Walk(*condition.target, i).all());
        }
        return is_passed ? result : Outcome{true, true, false};
    }

    Outcome of_kind(const Condition& condition) const
    {
        using Kind = Condition::Kind;
        switch (condition.kind) {
            case Kind::kAlways:
                return {true, false, false};
            case Kind::kNull:
                return is_null(condition.operands[0]) ? Outcome{true, false, false} : Outcome{true, true, false};
            case Kind::kAllOf:
            case Kind::kAnyOf:
                return of_parts(condition);
            case Kind::kRefusedBy:
                return of_other_check(condition);
            case Kind::kRow:
                return std::ranges::any_of(condition.matches,
                                           [this](const auto& match) { return reads(match.value); })
                           ? Outcome{false, false, true, true}
                           : Outcome{true, true, false};
            default:
                return std::ranges::any_of(condition.operands, [this](const auto& one) { return reads(one); })
                           ? Outcome{false, false, true, true}
                           : Outcome{true, true, false};
        }
    }

    Outcome of(const Condition& condition) const
    {
        Outcome result = of_kind(condition);
        if (condition.is_negated) std::swap(result.holds, result.fails);
        return result;
    }

    bool acts_on_null(const Step& step) const
    {
        return reads(step.lines) || reads(step.code.number) ||
               std::ranges::any_of(step.writes, [this](const Write& write) {
                   return reads(write.target) || reads(write.value);
               });
    }

    // run tells whether what comes after the steps may be reached.
    bool run(const std::vector<Step>& steps, bool in_list)
    {
        return std::ranges::all_of(steps, [&](const Step& step) { return run(step, in_list); });
    }

    bool run(const Step& step, bool in_list)
    {
        // What has no name inside a list is the item.
        const bool was_first = is_first_;
        is_first_ = is_first_ && !in_list;
        const bool goes_on = run_here(step, in_list);
        is_first_ = was_first;
        return goes_on;
    }

    bool run_here(const Step& step, bool in_list)
    {
        using Kind = Step::Kind;
        if (step.kind == Kind::kForEach) {
            if (reads(step.list->of)) return end(true);
            // A text has at least one item.
            const bool is_skipped = std::ranges::any_of(
                step.steps, [](const Step& one) { return one.kind == Kind::kSkip; });
            return run(step.steps, true) || is_skipped || step.list->separator == '\0';
        }
        if (step.kind == Kind::kReads && reads(*step.value)) return end(step.name.empty());
        if (step.kind == Kind::kRemember) {
            if (!is_null(*step.value)) return !reads(*step.value) || end(true);
            names_.insert(step.name);
            return true;
        }
        const Outcome condition = of(step.condition);
        outcome_.ends |= condition.ends;
        outcome_.reads |= condition.reads;
        if (step.kind == Kind::kWhen) {
            const bool from_steps = condition.holds && run(step.steps, in_list);
            const bool from_others = condition.fails && run(step.otherwise, in_list);
            return from_steps || from_others;
        }
        if (!condition.holds) return condition.fails;
        if (acts_on_null(step)) {
            end(true);
            return condition.fails;
        }
        switch (step.kind) {
            case Kind::kRefuse:
                outcome_.holds = true;
                return condition.fails;
            case Kind::kAccept:
                outcome_.fails = true;
                return condition.fails;
            case Kind::kNeverReturns:
                return condition.fails;
            default:
                return true;
        }
    }

    bool end(bool by_reading)
    {
        outcome_.ends = true;
        outcome_.reads |= by_reading;
        return false;
    }

    const Check& check_;
    std::set<std::string_view> names_;  // of the argument, and what is remembered of it
    bool is_first_ = false;
    bool is_asserted_ = false;
    Outcome outcome_;  // holds: it is refused; fails: it is accepted
};

}  // namespace

Null null_of(const Check& check, std::size_t argument)
{
    const Outcome outcome = Walk(check, argument).all();
    if (!outcome.ends) return Null::kAlways;
    if (outcome.holds || outcome.fails) return Null::kSometimes;
    return outcome.reads ? Null::kRead : Null::kAsserted;
}

}  // namespace ostrel::web
