// One-line descriptions of what checks accept.
#include <algorithm>
#include <span>

#include "rules/explain.h"
#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

using Kind = Step::Kind;

constexpr std::string_view kNothing = "nothing";

class Summary {
 public:
    // phrase describes what the given steps accept. It returns an empty string if they accept everything.
    std::string phrase(std::span<const Step> steps, const Speaker& speaker)
    {
        std::vector<Clause> clauses;
        std::string more;
        const auto all = [&](const std::string& last) {
            std::string text = together(clauses);
            for (const std::string& part : {more, last}) {
                if (!part.empty()) text.append(text.empty() ? "" : "; ").append(part);
            }
            return text;
        };
        for (std::size_t i = 0; i < steps.size(); ++i) {
            const Step& step = steps[i];
            const auto known = speaker.known(step.condition);
            switch (step.kind) {
                case Kind::kRefuse:
                case Kind::kNeverReturns:
                    if (known && *known) return std::string(kNothing);
                    if (!known && !refuse(clauses, step.condition, speaker)) return std::string(kNothing);
                    break;
                case Kind::kAccept: {
                    const bool is_null = step.condition.kind == Condition::Kind::kNull;
                    if (is_null || (known && !*known)) break;  // the argument's description covers NULL
                    if (known) return all("");
                    const std::string rest = phrase(steps.subspan(i + 1), speaker);
                    if (rest.empty()) return all("");
                    const std::string this_one = speaker.when(step.condition);
                    return all(rest == kNothing ? this_one
                                                : "either " + this_one + ", or else " + enclosed(rest));
                }
                case Kind::kWhen:
                    if (!known && accepts_nothing(step.steps, speaker, step.condition)) {
                        clauses.push_back(speaker.clause(step.condition, false));
                        add(more, phrase(step.otherwise, speaker));
                    } else {
                        add(more, cases(step, speaker));
                    }
                    break;
                case Kind::kForEach: {
                    const std::string each = phrase(step.steps, speaker.of_items(*step.list));
                    if (!each.empty()) add(more, speaker.list(*step.list) + ": " + enclosed(each));
                    break;
                }
                case Kind::kSkip:
                    is_plain_ = false;
                    break;
                default:
                    break;
            }
        }
        return all("");
    }

    [[nodiscard]] bool is_plain() const { return is_plain_; }

 private:
    static void add(std::string& text, const std::string& part)
    {
        if (!part.empty()) text.append(text.empty() ? "" : "; ").append(part);
    }

    static std::string enclosed(const std::string& phrase)
    {
        return phrase.find("; ") == std::string::npos ? phrase : "(" + phrase + ")";
    }

    bool accepts_nothing(const std::vector<Step>& steps, Speaker speaker, const Condition& condition)
    {
        speaker.learn(condition, true);
        return phrase(steps, speaker) == kNothing;
    }

    std::string cases(const Step& step, const Speaker& speaker)
    {
        if (const auto known = speaker.known(step.condition)) {
            return phrase(*known ? step.steps : step.otherwise, speaker);
        }
        ++depth_;
        const std::string one = phrase(step.steps, speaker);
        const std::string other = phrase(step.otherwise, speaker);
        if (--depth_ > 0) is_plain_ = false;  // readers could not tell where the inner cases end
        if (one.empty() && other.empty()) return "";
        if (one.empty()) {
            return "if " + speaker.clause(step.condition, false).text() + ": " + enclosed(other);
        }
        std::string text = "if " + speaker.when(step.condition) + ": " + enclosed(one);
        if (!other.empty()) text += "; otherwise: " + enclosed(other);
        return text;
    }

    // refuse adds the condition under which a step does not refuse. It returns false if the step refuses
    // every value that the earlier steps do not refuse.
    bool refuse(std::vector<Clause>& clauses, const Condition& condition, const Speaker& speaker)
    {
        const bool is_use = condition.kind == Condition::Kind::kRefusedBy && !condition.is_negated;
        if (is_use && is_flat(*condition.target)) {
            const Speaker inner = speaker.of_other(condition);
            for (const Step& step : condition.target->steps) {
                const auto known = inner.known(step.condition);
                if (step.kind != Kind::kRefuse || (known && !*known)) continue;
                if (known || !refuse(clauses, step.condition, inner)) return false;
            }
            return true;
        }
        if (is_use &&
            std::ranges::count(condition.target->arguments, false, &Argument::is_only_written) == 1) {
            const std::string_view what = condition.target->arguments[0].what;
            const bool is_thing =
                what.starts_with("a ") || what.starts_with("an ") || what.starts_with("the ");
            const std::string check = std::string(condition.check);
            const std::string is =
                is_thing ? "is " + std::string(what) + " (" + check + ")" : "is accepted by " + check;
            clauses.push_back({speaker.value(condition.operands[0]), is});
            return true;
        }
        if (condition.kind == Condition::Kind::kNull) return true;  // the argument's description covers NULL
        const Clause refused = speaker.clause(condition);
        const Clause wanted = speaker.clause(condition, false);
        // If values are refused both when a condition holds and when it fails, nothing is accepted.
        if (std::ranges::any_of(clauses, [&](const Clause& one) { return one.text() == refused.text(); }))
            return false;
        if (std::ranges::any_of(clauses, [&](Clause& one) { return includes(one, wanted); })) return true;
        clauses.push_back(wanted);
        return true;
    }

    static bool is_flat(const Check& check)
    {
        return std::ranges::all_of(check.steps, [](const Step& step) {
            return step.kind == Kind::kReads || step.kind == Kind::kRefuse;
        });
    }

    bool is_plain_ = true;
    int depth_ = 0;
};

bool remembers_twice(const std::vector<Step>& steps, std::vector<int>& counts)
{
    return std::ranges::any_of(steps, [&](const Step& step) {
        if (step.kind == Kind::kRemember && ++counts[step.slot] > 1) return true;
        return remembers_twice(step.steps, counts) || remembers_twice(step.otherwise, counts);
    });
}

std::string answered(const Check& check, const Speaker& speaker)
{
    std::string text;
    for (const Step& step : check.steps) {
        if (step.kind != Kind::kAccept) continue;
        const bool always = speaker.known(step.condition).value_or(false);
        text += text.empty() ? "" : "; ";
        text += (always && !text.empty() ? "otherwise " : "") + speaker.number(step.code.number);
        if (!always) text += " if " + speaker.when(step.condition);
    }
    return text;
}

}  // namespace

std::string accepted(const Check& check, const Build& build)
{
    constexpr std::size_t kLongest = 400;
    Speaker speaker(check, build);
    if (!check.is_verdict) return answered(check, speaker);
    std::vector<int> counts(check.slots);
    Summary summary;
    if (!remembers_twice(check.steps, counts)) {
        speaker.spell_out(check.steps);
        std::string text = summary.phrase(check.steps, speaker);
        if (text.empty()) return "every value";
        if (summary.is_plain() && text.size() <= kLongest) return text;
    }
    std::string text;
    for (const Argument& argument : check.arguments) {
        if (argument.is_only_written()) continue;
        text.append(text.empty() ? "" : "; ").append(argument.name).append(": ").append(argument.what);
    }
    return text;
}

}  // namespace ostrel::rules
