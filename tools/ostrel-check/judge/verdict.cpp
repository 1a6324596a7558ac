#include "judge/verdict.h"

#include <algorithm>
#include <numeric>

#include "catalogue/result_codes.h"

namespace ostrel::tool {

std::string_view name_of(Verdict verdict)
{
    switch (verdict) {
        case Verdict::kAccepted:
            return "accepted";
        case Verdict::kRefused:
            return "refused";
        case Verdict::kAnswer:
            return "answer";
        case Verdict::kMalformed:
            return "malformed";
        case Verdict::kEnded:
            return "ended";
        case Verdict::kNoDriver:
            return "no driver";
        case Verdict::kNoReturn:
            break;
    }
    return "no return";
}

std::string_view json_name(Verdict verdict)
{
    if (verdict == Verdict::kNoReturn) return "no_return";
    return verdict == Verdict::kNoDriver ? "no_driver" : name_of(verdict);
}

bool has_code(Verdict verdict) { return is_code(verdict) || verdict == Verdict::kAnswer; }

bool is_code(Verdict verdict) { return verdict == Verdict::kAccepted || verdict == Verdict::kRefused; }

int exit_code(Verdict verdict)
{
    switch (verdict) {
        case Verdict::kAccepted:
        case Verdict::kAnswer:
            return kExitAccepted;
        case Verdict::kRefused:
            return kExitRefused;
        case Verdict::kMalformed:
        case Verdict::kNoDriver:
            return kExitUsage;
        case Verdict::kEnded:
        case Verdict::kNoReturn:
            break;
    }
    return kExitEnded;
}

int Tally::exit_code() const
{
    int highest = kExitAccepted;
    for (std::size_t i = 0; i < kVerdicts; ++i) {
        if (counts[i] > 0) highest = std::max(highest, tool::exit_code(static_cast<Verdict>(i)));
    }
    return highest;
}

std::uint64_t Tally::sum() const { return std::accumulate(counts.begin(), counts.end(), std::uint64_t{0}); }

void Result::clear()
{
    // Most results have no reason, and resetting one takes time.
    if (!why.text.empty() || !why.reason.id.empty()) why = Why();
    verdict = Verdict::kMalformed;
    function = nullptr;
    values = nullptr;
    record = nullptr;
    code = 0;
    problem.clear();
    printed = {};
    after.clear();
    is_tried = true;
}

void judge(Result& result, int code)
{
    result.code = code;
    const bool is_verdict = result.function->check->is_verdict;
    result.verdict = !is_verdict ? Verdict::kAnswer : code == 0 ? Verdict::kAccepted : Verdict::kRefused;
}

namespace {

std::string in_parentheses(const std::string& text) { return text.empty() ? "" : " (" + text + ")"; }

}  // namespace

std::string describe(const Result& result)
{
    const std::string code = std::to_string(result.code);
    switch (result.verdict) {
        case Verdict::kAccepted:
            return "accepted: 0, valid";
        case Verdict::kAnswer:
            return "answer " + code;
        case Verdict::kRefused: {
            std::string text = "refused: " + code + ", ";
            text += catalogue::meaning(result.code);
            return text + in_parentheses(result.why.text);
        }
        default:
            return std::string(name_of(result.verdict)) + ": " + result.problem +
                   in_parentheses(result.why.text);
    }
}

}  // namespace ostrel::tool
