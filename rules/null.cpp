#include "rules/null.h"

#include <algorithm>

#include "rules/null_walk.h"
#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

std::string in_words(const std::vector<int>& codes)
{
    std::vector<std::string> words;
    words.reserve(codes.size());
    for (const int code : codes) words.push_back(std::to_string(code));
    return joined_words(words, "or");
}

std::string in_words(const NullEnd& end)
{
    switch (end.kind) {
        case NullEnd::Kind::kAccepted:
            return "accepted";
        case NullEnd::Kind::kRefused:
            return "refused with " + in_words(end.codes);
        case NullEnd::Kind::kAnswered:
            return "returns " + in_words(end.codes);
        case NullEnd::Kind::kPrinted:
            return "passed to the C library, which prints it or ends the process";
        case NullEnd::Kind::kFault:
            return "ends the process (memory fault)";
        case NullEnd::Kind::kAsserted:
            return "ends the process (failed assertion " + std::string(end.assertion) + ")";
        case NullEnd::Kind::kStays:
            return "does not return";
    }
    return "";
}

// in_words describes how calls end and under which conditions. If the description would be too long, or if
// conditions are unknown, it lists only the ways in which calls end.
std::string in_words(const std::vector<NullEnd>& ends, const std::set<std::string>& sources)
{
    constexpr std::size_t kLongest = 200;
    std::vector<NullEnd> kinds;  // each kind once, with all its codes
    for (const NullEnd& end : ends) {
        const auto known = std::ranges::find(kinds, end.kind, &NullEnd::kind);
        if (known == kinds.end()) {
            kinds.push_back(end);
        } else {
            add(known->codes, end.codes);
        }
    }
    std::vector<std::string> outcomes;
    outcomes.reserve(kinds.size());
    for (const NullEnd& kind : kinds) outcomes.push_back(in_words(kind));
    if (kinds.size() == 1 && kinds[0].codes.size() < 2) return outcomes[0];
    std::string text;
    for (std::size_t i = 0; i < ends.size();) {
        const std::string outcome = in_words(ends[i]);
        std::string when;
        for (; i < ends.size() && in_words(ends[i]) == outcome; ++i)
            when.append(when.empty() ? " if " : ", or if ").append(ends[i].when);
        text += (text.empty() ? "" : "; ") + (i < ends.size() ? outcome + when : "otherwise " + outcome);
    }
    const std::string names = joined_words(std::vector<std::string>(sources.begin(), sources.end()), "and");
    const bool is_known = std::all_of(ends.begin(), std::prev(ends.end()),
                                      [](const NullEnd& end) { return !end.when.empty(); });
    if (text.size() > kLongest || !is_known) text = joined_words(outcomes, "or");
    return "depends on " + names + ": " + text;
}

NullOutcome outcome_of(NullEnd::Kind kind)
{
    switch (kind) {
        case NullEnd::Kind::kAccepted:
            return NullOutcome::kAccepted;
        case NullEnd::Kind::kRefused:
            return NullOutcome::kRefused;
        case NullEnd::Kind::kAsserted:
            return NullOutcome::kAssertion;
        case NullEnd::Kind::kPrinted:
        case NullEnd::Kind::kFault:
            return NullOutcome::kFault;
        default:
            return NullOutcome::kDepends;
    }
}

}  // namespace

std::string null_does(const Check& check, std::size_t argument, const Build& build)
{
    if (check.arguments[argument].is_number()) return "";
    const NullEnds found = null_ends(check, argument, build);
    return in_words(found.ends, found.sources);
}

NullOutcome null_outcome(const Check& check, std::size_t argument, const Build& build)
{
    const std::vector<NullEnd> ends = null_ends(check, argument, build).ends;
    const NullOutcome first = outcome_of(ends.front().kind);
    const bool is_one =
        std::ranges::all_of(ends, [&](const NullEnd& end) { return outcome_of(end.kind) == first; });
    return is_one ? first : NullOutcome::kDepends;
}

}  // namespace ostrel::rules
