// What NULL does, found by walking the steps with NULL for one argument and anything else for the others.
#include <algorithm>
#include <set>

#include "rules/explain.h"
#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

using Kind = Step::Kind;

// End is how a call may come to its end, and where that is so.
struct End {
    enum class Kind { kAccepted, kRefused, kAnswered, kPrinted, kFault, kAsserted, kStays };

    Kind kind;
    std::vector<int> codes = {};
    std::string when = {};
    std::string_view assertion = {};
};

void add(std::vector<int>& codes, const std::vector<int>& more)
{
    for (const int code : more) {
        if (std::ranges::find(codes, code) == codes.end()) codes.push_back(code);
    }
}

// Truth is what is known of a condition. kStops: it is not found out, for the call ends before.
enum class Truth { kNever, kMaybe, kAlways, kStops };

class Walk {
 public:
    std::vector<End> ends;
    std::set<std::string> sources;  // the arguments on which it depends
    bool is_printed = false;        // the NULL, by a step that may act

    // run tells whether the call may go on after the steps.
    bool run(const std::vector<Step>& steps, Speaker& speaker, const std::string& where)
    {
        return std::ranges::all_of(steps, [&](const Step& step) { return run(step, speaker, where); });
    }

 private:
    static std::string both(const std::string& one, const std::string& other)
    {
        return one + (one.empty() || other.empty() ? "" : " and ") + other;
    }

    bool stop(End::Kind kind, const std::string& where)
    {
        ends.push_back({kind, {}, where});
        return false;
    }

    bool run(const Step& step, Speaker& speaker, const std::string& where)
    {
        if (step.kind == Kind::kForEach) {
            if (speaker.reads_null(step.list->of)) return stop(End::Kind::kFault, where);
            speaker.forget(step);
            Speaker inner = speaker.of_items(*step.list);
            return run(step.steps, inner, where);
        }
        if (step.kind == Kind::kReads) {
            if (!speaker.is_null(*step.value)) return true;
            ends.push_back(
                {step.name.empty() ? End::Kind::kFault : End::Kind::kAsserted, {}, where, step.name});
            return false;
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
            stop(End::Kind::kFault, here);
        } else if (step.kind == Kind::kNeverReturns) {
            stop(End::Kind::kStays, here);
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
        for (int& code : codes) {
            for (const auto& [from, to] : step.code.exchanges) {
                if (code == from) code = to;
            }
        }
        const bool is_verdict = speaker.check().is_verdict;
        ends.push_back({refuses      ? End::Kind::kRefused
                        : is_verdict ? End::Kind::kAccepted
                                     : End::Kind::kAnswered,
                        std::move(codes), where});
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
                // A row is compared from its first match on, as long as one suits.
                const auto& matches = condition.matches;
                const auto null = std::ranges::find_if(
                    matches, [&](const Match& match) { return speaker.reads_null(match.value); });
                if (null == matches.end()) return Truth::kMaybe;
                stop(End::Kind::kFault, where);
                return null == matches.begin() ? Truth::kStops : is(false);
            }
            default:
                break;
        }
        for (const Expression& operand : condition.operands) {
            if (!speaker.reads_null(operand)) continue;
            stop(End::Kind::kFault, where);
            return Truth::kStops;
        }
        const auto known = speaker.known(condition);
        if (!known) return Truth::kMaybe;
        return *known ? Truth::kAlways : Truth::kNever;
    }

    // A part is judged only where those before it leave that open.
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
                ends.push_back({End::Kind::kAsserted, {}, where, asserted});
                return Truth::kStops;
            }
            if (speaker.reads_null(operand) && !speaker.is_null(operand)) {
                stop(End::Kind::kFault, where);
                return Truth::kStops;
            }
        }
        Walk walk;
        bool accepts = walk.run(condition.target->steps, inner, where);
        is_printed = is_printed || walk.is_printed;
        its_codes_.clear();
        for (const End& end : walk.ends) {
            if (end.kind == End::Kind::kRefused) {
                add(its_codes_, end.codes);
            } else if (end.kind == End::Kind::kAccepted) {
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

    std::vector<int> its_codes_;  // of the check that was last judged
};

std::string in_words(const std::vector<int>& codes)
{
    std::vector<std::string> words;
    for (const int code : codes) words.push_back(std::to_string(code));
    return joined_words(words, "or");
}

std::string in_words(const End& end)
{
    switch (end.kind) {
        case End::Kind::kAccepted:
            return "accepted";
        case End::Kind::kRefused:
            return "refused with " + in_words(end.codes);
        case End::Kind::kAnswered:
            return "answers " + in_words(end.codes);
        case End::Kind::kPrinted:
            return "left to the C library, which prints it or ends the process";
        case End::Kind::kFault:
            return "ends the process, by a memory fault";
        case End::Kind::kAsserted:
            return "ends the process, by a failed assertion of " + std::string(end.assertion);
        case End::Kind::kStays:
            return "does not return";
    }
    return "";
}

// in_words says when a call comes to which end, as long as that is not too much to be read.
std::string in_words(const std::vector<End>& ends, const std::set<std::string>& sources)
{
    constexpr std::size_t kLongest = 200;
    std::vector<End> kinds;  // each once, with all its codes
    for (const End& end : ends) {
        const auto known = std::ranges::find(kinds, end.kind, &End::kind);
        if (known == kinds.end()) {
            kinds.push_back(end);
        } else {
            add(known->codes, end.codes);
        }
    }
    std::vector<std::string> outcomes;
    for (const End& kind : kinds) outcomes.push_back(in_words(kind));
    if (kinds.size() == 1 && kinds[0].codes.size() < 2) return outcomes[0];
    std::string text;
    for (std::size_t i = 0; i < ends.size();) {
        const std::string outcome = in_words(ends[i]);
        std::string when;
        for (; i < ends.size() && in_words(ends[i]) == outcome; ++i)
            when.append(when.empty() ? " where " : ", or where ").append(ends[i].when);
        text += (text.empty() ? "" : "; ") + (i < ends.size() ? outcome + when : "otherwise " + outcome);
    }
    const std::string names = joined_words(std::vector<std::string>(sources.begin(), sources.end()), "and");
    if (text.size() > kLongest) text = joined_words(outcomes, "or");
    return "depends on " + names + ": " + text;
}

}  // namespace

std::string null_does(const Check& check, std::size_t argument, const Build& build)
{
    const Argument& of = check.arguments[argument];
    if (of.kind == Argument::Kind::kInteger || of.kind == Argument::Kind::kUnsigned) return "";
    Walk walk;
    if (!of.asserted.empty()) {
        walk.ends.push_back({End::Kind::kAsserted, {}, "", of.asserted});
    } else {
        Speaker speaker(check, build);
        speaker.pass_null(argument);
        if (walk.run(check.steps, speaker, "")) {
            walk.ends.push_back({check.is_verdict ? End::Kind::kAccepted : End::Kind::kAnswered, {0}});
        }
    }
    for (End& end : walk.ends) {
        if (walk.is_printed && end.kind != End::Kind::kFault) end.kind = End::Kind::kPrinted;
    }
    walk.sources.erase(std::string(of.name));
    return in_words(walk.ends, walk.sources);
}

}  // namespace ostrel::rules
