// Descriptions of a check's steps in words.
#include "rules/explain.h"

#include <algorithm>
#include <set>

#include "rules/phrases.h"
#include "rules/walk.h"

namespace ostrel::rules {

namespace {

using Kind = Step::Kind;

// missing states what an expression for part of a string refers to if the string has no separator.
std::string missing(const Expression& expression)
{
    switch (expression.kind) {
        case Expression::Kind::kBeforeFirst:
        case Expression::Kind::kBeforeLast:
        case Expression::Kind::kAfterLast:
            return " (all of it if there is none)";
        case Expression::Kind::kAfterFirst:
        case Expression::Kind::kThroughLast:
            return " (nothing if there is none)";
        default:
            return "";
    }
}

class Explainer {
 public:
    std::vector<int> codes;  // the codes other than 0, in the order of the steps
    bool reads_numbers = false;

    // steps describes the steps that can act. It returns true if every call ends in one of them.
    bool steps(const std::vector<Step>& steps, Speaker& speaker, bool is_called, std::vector<Said>& result)
    {
        for (const Step& step : steps) {
            if (step.kind == Kind::kReads || is_nowhere(step, speaker)) continue;
            const auto known = speaker.known(step.condition);
            if (step.kind == Kind::kWhen && known) {
                if (this->steps(*known ? step.steps : step.otherwise, speaker, is_called, result))
                    return true;
            } else if (!known || *known) {
                if (say(step, speaker, is_called, result) || (is_final(step) && known)) return true;
            }
        }
        return false;
    }

 private:
    static bool is_final(const Step& step)
    {
        return step.kind == Kind::kRefuse || step.kind == Kind::kAccept || step.kind == Kind::kNeverReturns ||
               step.kind == Kind::kSkip;
    }

    // is_nowhere returns whether a step only writes to an argument that the explained check ignores.
    static bool is_nowhere(const Step& step, const Speaker& speaker)
    {
        return step.kind == Kind::kWrite && speaker.value(step.writes[0].target).empty();
    }

    // say adds the description of a step. It returns true if no call continues after the step.
    bool say(const Step& step, Speaker& speaker, bool is_called, std::vector<Said>& all)
    {
        Said& result = all.emplace_back();
        result.kind = step.kind;
        result.text = text(step, speaker, is_called);
        result.lines = lines(step, speaker);
        for (const Write& write : step.writes) {
            const std::string written = becomes(write, speaker);
            if (step.kind != Kind::kWrite && !written.empty()) result.writes.push_back(written);
        }
        std::vector<int> its_codes;
        result.uses = uses(step.condition, speaker, step.kind != Kind::kWhen, its_codes);
        if (step.kind == Kind::kRefuse || step.kind == Kind::kAccept) {
            if (!step.code.is_its) its_codes = {static_cast<int>(step.code.number.number)};
            if (!step.code.is_its && is_called) result.code = its_codes[0];
            add_codes(step, its_codes);
        }
        reads_numbers = reads_numbers || speaker.reads_number(step.condition);
        if (step.list) {
            speaker.forget(step);
            Speaker inner = speaker.of_items(*step.list);
            steps(step.steps, inner, is_called, result.steps);
            return false;
        }
        if (step.kind != Kind::kWhen) {
            speaker.forget(step);
            if (is_final(step)) speaker.learn(step.condition, false);
            return false;
        }
        Speaker other = speaker;
        speaker.learn(step.condition, true);
        other.learn(step.condition, false);
        const bool ends = steps(step.steps, speaker, is_called, result.steps);
        const bool other_ends = steps(step.otherwise, other, is_called, result.otherwise);
        if (ends) {
            speaker = other;
        } else if (!other_ends) {
            speaker.meet(other);
        }
        return ends && other_ends;
    }

    void add_codes(const Step& step, const std::vector<int>& answered)
    {
        for (const int its_code : answered) {
            const int code = step.code.exchanged(its_code);
            if (code != 0 && std::ranges::find(codes, code) == codes.end()) codes.push_back(code);
        }
    }

    static std::string if_it_holds(const Step& step, const Speaker& speaker)
    {
        return speaker.known(step.condition) ? "" : " if " + speaker.when(step.condition);
    }

    static std::string text(const Step& step, const Speaker& speaker, bool is_called)
    {
        const std::string condition = if_it_holds(step, speaker);
        switch (step.kind) {
            case Kind::kRefuse:
                return verdict(step, speaker, is_called) + condition;
            case Kind::kAccept:
                if (!speaker.check().is_verdict) return "returns " + code(step, speaker) + condition;
                return (is_called ? "accepted" : "accepts") + condition;
            case Kind::kPrint:
                return "prints and continues" + condition;
            case Kind::kSkip:
                return "skips " + speaker.item() + condition;
            case Kind::kWrite:
                return becomes(step.writes[0], speaker);
            case Kind::kRemember:
                return "keeps " + speaker.value(*step.value) + " as " + std::string(step.name) +
                       missing(*step.value);
            case Kind::kWhen:
                return "if " + speaker.when(step.condition);
            case Kind::kForEach:
                return "for " + speaker.list(*step.list);
            default:
                return "does not return" + condition;
        }
    }

    static std::string becomes(const Write& write, const Speaker& speaker)
    {
        const std::string target = speaker.value(write.target);
        if (target.empty()) return "";
        return target + " becomes " + speaker.value(write.value) +
               (write.is_terminated ? "" : ", copied without a terminator or a bounds check");
    }

    static std::string code(const Step& step, const Speaker& speaker)
    {
        return speaker.number(step.code.number);
    }

    static std::string verdict(const Step& step, const Speaker& speaker, bool is_called)
    {
        const std::string word = is_called ? "refused" : "refuses";
        if (!step.code.is_its) return word + " with " + code(step, speaker);
        std::string text = word + " with its code";
        for (const auto& [from, to] : step.code.exchanges) {
            text += " (" + std::to_string(to) + " for " + std::to_string(from) + ")";
        }
        return text;
    }

    static std::vector<SaidLine> lines(const Step& step, const Speaker& speaker)
    {
        std::vector<SaidLine> result;
        for (const Shape& shape : step.condition.shapes) {
            for (const Group& group : shape) {
                for (const Line& line : group.lines) add(result, group, line, speaker);
            }
        }
        for (const Line& line : step.lines) result.push_back(said(line, "", speaker));
        return result;
    }

    static SaidLine said(const Line& line, const std::string& when, const Speaker& speaker)
    {
        return {speaker.line(line), when, line.stream, line.is_flushed};
    }

    // add describes when a group's line is printed. Several groups may share a line.
    static void add(std::vector<SaidLine>& lines, const Group& group, const Line& line,
                    const Speaker& speaker)
    {
        const std::string expected = in_words(group.set);
        const SaidLine one = said(line, "instead of " + expected, speaker);
        const auto known = std::ranges::find(lines, one.text, &SaidLine::text);
        if (known == lines.end()) {
            lines.push_back(one);
        } else if (known->when.find(expected) == std::string::npos) {
            known->when += " or " + expected;
        }
    }

    // uses describes the other checks that a condition calls, and stores the codes that they return in
    // its_codes. A call that prints nothing is described only if always is true, and only the first time.
    std::vector<Said> uses(const Condition& condition, const Speaker& speaker, bool always,
                           std::vector<int>& its_codes)
    {
        std::vector<Said> result;
        for (const Condition& part : condition.parts) {
            for (Said& one : uses(part, speaker, false, its_codes)) result.push_back(std::move(one));
        }
        if (condition.kind != Condition::Kind::kRefusedBy) return result;
        Speaker other = speaker.of_other(condition);
        Said one;
        one.kind = Kind::kWhen;
        one.text = "steps of " + std::string(condition.check);
        std::swap(codes, its_codes);
        steps(condition.target->steps, other, false, one.steps);
        std::swap(codes, its_codes);
        std::string use(condition.check);
        for (const Expression& operand : condition.operands) use += " " + speaker.value(operand);
        const bool is_new = said_.insert(use).second;
        if (prints(*condition.target) || (always && is_new)) result.push_back(std::move(one));
        return result;
    }

    std::set<std::string> said_;
};

}  // namespace

Explanation explain(const Check& check, const Build& build)
{
    Explanation result;
    Speaker speaker(check, build);
    Explainer explainer;
    explainer.steps(check.steps, speaker, true, result.steps);
    result.accepted = accepted(check, build);
    if (check.is_verdict) result.codes = std::move(explainer.codes);
    if (explainer.reads_numbers) result.numbers = how_numbers_are_read(build);
    result.arguments = said_arguments(check, build);
    return result;
}

}  // namespace ostrel::rules
