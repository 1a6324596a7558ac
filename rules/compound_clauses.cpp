// Descriptions, in words, of compound conditions: table rows, other checks, conjunctions and disjunctions.
#include <algorithm>

#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

using Kind = Condition::Kind;

}  // namespace

Clause Speaker::row_clause(const Condition& condition, bool holds) const
{
    std::vector<std::string> matches;
    for (const Match& match : condition.matches) {
        const std::string column(condition.table->columns[match.column]);
        const bool is_part = match.how == Match::How::kPart;
        matches.push_back((match.how == Match::How::kNumber ? number(match.value) : value(match.value)) +
                          (is_part ? " as part of its " : " as its ") + column);
    }
    return {"the table", (holds ? "has a row with " : "has no row with ") + joined_words(matches, "and")};
}

Clause Speaker::use_clause(const Condition& condition, bool holds) const
{
    std::vector<std::string> judged;
    for (const Expression& operand : condition.operands) {
        const Expression* fixed = constant(operand);
        if (operand.kind == Expression::Kind::kNowhere || fixed != nullptr) continue;
        judged.push_back(value(operand));
    }
    return {std::string(condition.check), (holds ? "refuses " : "accepts ") + joined_words(judged, "and")};
}

Clause Speaker::parts_clause(const Condition& condition, bool holds) const
{
    const bool all = (condition.kind == Kind::kAllOf) == holds;
    std::vector<std::string> texts;
    std::string subject;
    for (const Condition& part : condition.parts) {
        if (const auto fixed = known(part); fixed && (*fixed == holds) == all) continue;
        const Clause one = clause(part, holds);
        const bool is_joint = !part.parts.empty() && condition.parts.size() > 1;
        texts.push_back(is_joint                 ? "(" + one.text() + ")"
                        : one.subject == subject ? one.predicate
                                                 : one.text());
        subject = is_joint ? "" : one.subject;
    }
    if (texts.empty()) return {"", all == holds ? "always" : "never"};
    return {"", joined_words(texts, all ? "and" : "or")};
}

bool Speaker::reads_number(const Condition& condition) const
{
    const auto reads = [&](const Expression& one) { return !is_number(one) && constant(one) == nullptr; };
    switch (condition.kind) {
        case Kind::kBelow:
        case Kind::kAbove:
        case Kind::kMultiple:
            return reads(condition.operands[0]) || reads(condition.operands[1]);
        case Kind::kAmong:
        case Kind::kBetween:
        case Kind::kListed:
            return reads(condition.operands[0]);
        case Kind::kEqual:
            return is_number(condition.operands[0]) != is_number(condition.operands[1]);
        case Kind::kRow:
            return std::ranges::any_of(condition.matches, [&](const Match& match) {
                return match.how == Match::How::kNumber && reads(match.value);
            });
        default:
            return std::ranges::any_of(condition.parts,
                                       [&](const Condition& part) { return reads_number(part); });
    }
}

}  // namespace ostrel::rules
