#include "rules/null_walk.h"

#include <algorithm>

#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

using Kind = Step::Kind;

// Truth is what is known about a condition. kStops means that the call ends while the condition is evaluated.
enum class Truth { kNever, kMaybe, kAlways, kStops };

class Walk {
 public:
    std::vector<NullEnd> ends;
    std::set<std::string> sources;  // the arguments on which the end depends
    bool is_printed = false;        // a step that may act prints NULL

    // run returns true if the call may continue after the steps.
    bool run(const std::vector<Step>& steps, Speaker& speaker, const std::string& where)
    {
        return std::ranges::all_of(steps, [&](const Step& step) { return run(step, speaker, where); });
    }

 private:
    static std::string both(const std::string& one, const std::string& other)
    {
        return one + (one.empty() || other.empty() ? "" : " and ") + other;
    }

    bool stop(NullEnd::Kind kind, const std::string& where, std::string_view assertion = {})
    {
        ends.push_back({kind, {}, where, assertion});
        return false;
    }

    bool run(const Step& step, Speaker& speaker, const std::string& where)
    {
        if (step.kind == Kind::kForEach) {
            if (speaker.reads_null(step.list->of)) return stop(NullEnd::Kind::kFault, where);
            speaker.forget(step);
            Speaker inner = speaker.of_items(*step.list);
            return run(step.steps, inner, where);
        }
        if (step.kind == Kind::kReads) {
            if (!speaker.is_null(*step.value)) return true;
            return stop(step.name.empty() ? NullEnd::Kind::kFault : NullEnd::Kind::kAsserted, where,
                        step.name);
        }
        const Truth truth = judge(step.condition, speaker, where);
        if (truth == Truth::kStops) return false;
        const bool is_open = truth == Truth::kMaybe;
        if (is_open) speaker.add_sources(step.condition, sources);
        const std::string here = is_open ? both(where, speaker.when(step.condition)) : where;
        if (step.kind == Kind::kWhen) return run_cases(step, speaker, where, truth);
        if (truth == Truth::kNever) return true;
        const bool ends_here = step.kind == Kind::kRefuse || step.kind == Kind::kAccept;
        is_printed = is_printed || prints_null(step, speaker);
        if (acts_on_null(step, speaker)) {
            stop(NullEnd::Kind::kFault, here);
        } else if (step.kind == Kind::kNeverReturns) {
            stop(NullEnd::Kind::kStays, here);
        } else if (ends_here) {
            answer(step, speaker, here);
        } else {
            speaker.forget(step);
            return true;
        }
        speaker.learn(step.condition, false);
        return is_open;
    }

    bool run_cases(const Step& step, Speaker& speaker, const std::string& where, Truth truth)
    {
        if (truth == Truth::kAlways) return run(step.steps, speaker, where);
        if (truth == Truth::kNever) return run(step.otherwise, speaker, where);
        const std::string here = both(where, speaker.when(step.condition));
        const std::string there = both(where, speaker.clause(step.condition, false).text());
        Speaker other = speaker;
        speaker.learn(step.condition, true);
        other.learn(step.condition, false);
        const bool goes_on = run(step.steps, speaker, here);
        const bool other_goes_on = run(step.otherwise, other, there);
        if (!goes_on) {
            speaker = other;
        } else if (other_goes_on) {
            speaker.meet(other);
        }
        return goes_on || other_goes_on;
    }

    static bool acts_on_null(const Step& step, const Speaker& speaker)
    {
        if (speaker.reads_null(step.code.number)) return true;
        if (step.value && speaker.reads_null(*step.value) && !speaker.is_null(*step.value)) return true;
        return std::ranges::any_of(step.writes, [&](const Write& write) {
            return speaker.is_null(write.target) || speaker.reads_null(write.value);
        });
    }

    static bool prints_null(const Step& step, const Speaker& speaker)
    {
        for (const Line& line : step.lines) {
            for (const Line::Part& part : line.parts) {
                if (part.value && speaker.reads_null(*part.value)) return true;
            }
        }
        return false;
    }

    void answer(const Step& step, const Speaker& speaker, const std::string& where)
    {
        const bool refuses = step.kind == Kind::kRefuse;
        std::vector<int> codes = {static_cast<int>(step.code.number.number)};
        if (step.code.is_its) codes = its_codes_;
        for (int& code : codes) code = step.code.exchanged(code);
        const auto other = speaker.check().is_verdict ? NullEnd::Kind::kAccepted : NullEnd::Kind::kAnswered;
        ends.push_back({refuses ? NullEnd::Kind::kRefused : other, std::move(codes), where});
    }

    Truth judge(const Condition& condition, const Speaker& speaker, const std::string& where)
    {
        const auto is = [&](bool holds) {
            return holds != condition.is_negated ? Truth::kAlways : Truth::kNever;
        };
        switch (condition.kind) {
            case Condition::Kind::kNull:
                return is(speaker.is_null(condition.operands[0]));
            case Condition::Kind::kAllOf:
            case Condition::Kind::kAnyOf:
                return judge_parts(condition, speaker, where);
            case Condition::Kind::kRefusedBy:
                return judge_use(condition, speaker, where);
            case Condition::Kind::kRow: {
                // A row is compared match by match until one fails.
                const auto& matches = condition.matches;
                const auto null = std::ranges::find_if(
                    matches, [&](const Match& match) { return speaker.reads_null(match.value); });
                if (null == matches.end()) return Truth::kMaybe;
                stop(NullEnd::Kind::kFault, where);
                return null == matches.begin() ? Truth::kStops : is(false);
            }
            default:
                break;
        }
        for (const Expression& operand : condition.operands) {
            if (!speaker.reads_null(operand)) continue;
            stop(NullEnd::Kind::kFault, where);
            return Truth::kStops;
        }
        const auto known = speaker.known(condition);
        if (!known) return Truth::kMaybe;
        return *known ? Truth::kAlways : Truth::kNever;
    }

    // judge_parts evaluates a part only if the parts before it do not determine the result.
    Truth judge_parts(const Condition& condition, const Speaker& speaker, const std::string& where)
    {
        const bool all = condition.kind == Condition::Kind::kAllOf;
        const Truth neutral = all ? Truth::kAlways : Truth::kNever;
        const Truth deciding = all ? Truth::kNever : Truth::kAlways;
        std::string here = where;
        bool is_open = false;
        for (const Condition& part : condition.parts) {
            const Truth truth = judge(part, speaker, here);
            if (truth == deciding) return deciding;
            if (truth == Truth::kStops) return is_open ? deciding : Truth::kStops;
            if (truth == neutral) continue;
            is_open = true;
            here = both(here, speaker.clause(part, all).text());
        }
        return is_open ? Truth::kMaybe : neutral;
    }

    Truth judge_use(const Condition& condition, const Speaker& speaker, const std::string& where)
    {
        Speaker inner = speaker.of_other(condition);
        for (std::size_t i = 0; i < condition.operands.size(); ++i) {
            const Expression& operand = condition.operands[i];
            const std::string_view asserted = condition.target->arguments[i].asserted;
            if (speaker.is_null(operand) && !asserted.empty()) {
                stop(NullEnd::Kind::kAsserted, where, asserted);
                return Truth::kStops;
            }
            if (speaker.reads_null(operand) && !speaker.is_null(operand)) {
                stop(NullEnd::Kind::kFault, where);
                return Truth::kStops;
            }
        }
        Walk walk;
        bool accepts = walk.run(condition.target->steps, inner, where);
        is_printed = is_printed || walk.is_printed;
        sources.merge(walk.sources);
        its_codes_.clear();
        for (const NullEnd& end : walk.ends) {
            if (end.kind == NullEnd::Kind::kRefused) {
                add(its_codes_, end.codes);
            } else if (end.kind == NullEnd::Kind::kAccepted) {
                accepts = true;
            } else {
                ends.push_back(end);
            }
        }
        const bool refuses = !its_codes_.empty();
        if (!refuses && !accepts) return Truth::kStops;
        if (refuses && accepts) return Truth::kMaybe;
        return refuses != condition.is_negated ? Truth::kAlways : Truth::kNever;
    }

    std::vector<int> its_codes_;  // the codes of the check that a condition called last
};

}  // namespace

void add(std::vector<int>& codes, const std::vector<int>& more)
{
    for (const int code : more) {
        if (std::ranges::find(codes, code) == codes.end()) codes.push_back(code);
    }
}

NullEnds null_ends(const Check& check, std::size_t argument, const Build& build)
{
    const Argument& of = check.arguments[argument];
    Walk walk;
    if (!of.asserted.empty()) {
        walk.ends.push_back({NullEnd::Kind::kAsserted, {}, "", of.asserted});
    } else {
        Speaker speaker(check, build);
        speaker.pass_null(argument);
        if (walk.run(check.steps, speaker, "")) {
            walk.ends.push_back(
                {check.is_verdict ? NullEnd::Kind::kAccepted : NullEnd::Kind::kAnswered, {0}});
        }
    }
    for (NullEnd& end : walk.ends) {
        if (walk.is_printed && end.kind != NullEnd::Kind::kFault) end.kind = NullEnd::Kind::kPrinted;
    }
    walk.sources.erase(std::string(of.name));
    return {std::move(walk.ends), std::move(walk.sources)};
}

}  // namespace ostrel::rules
