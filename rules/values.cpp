// Descriptions of strings and numbers in words.
#include "rules/datum.h"
#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

using Kind = Expression::Kind;

std::string bracketed(const std::string& operand)
{
    return operand[0] >= '0' && operand[0] <= '9' ? operand : "(" + operand + ")";
}

}  // namespace

std::string Speaker::number(const Expression& expression) const
{
    const bool is_named = is_number(expression) || !expression.part.empty();
    return (is_named ? "" : "the number in ") + value(expression);
}

// For an expression that names a part, value adds a description of the part.
std::string Speaker::value(const Expression& expression) const
{
    const std::string_view part = expression.part;
    std::string words = unnamed(expression);
    if (part.empty()) return words;
    const bool says_enough = part.starts_with("the part") || meant(expression) != nullptr;
    return std::string(part) + (says_enough ? "" : " (" + words + ")");
}

std::string Speaker::unnamed(const Expression& expression) const
{
    if (const Meant* named = meant(expression)) return named->words;
    const auto part = [&](std::string_view where) {
        return value(expression.of[0]).append(where).append(quoted(expression.of[1].text));
    };
    switch (expression.kind) {
        case Kind::kText:
            return quoted(expression.text);
        case Kind::kNumber:
            return std::to_string(expression.number);
        case Kind::kSet:
            return in_words(expression.set);
        case Kind::kModel:
            return quoted(build_->model);
        case Kind::kAccountRealm:
            return quoted(build_->account_realm);
        case Kind::kSetupRealm:
            return quoted(build_->setup_realm);
        case Kind::kIndex:
            return "the number of " + item_.words + ", counted from 0";
        case Kind::kRest:
            return "what follows " + item_.words + " in " + list_of_;
        case Kind::kByte:
            return "byte";
        case Kind::kOffset:
            return "offset";
        case Kind::kBeforeFirst:
            return part(" before its first ");
        case Kind::kBeforeLast:
            return part(" before its last ");
        case Kind::kAfterFirst:
            return part(" after its first ");
        case Kind::kAfterLast:
            return part(" after its last ");
        case Kind::kThroughLast:
            return part(" up to and including its last ");
        case Kind::kSlice:
            return slice(expression);
        default:
            return computed(expression);
    }
}

std::string Speaker::slice(const Expression& expression) const
{
    const std::string whole = value(expression.of[0]);
    const Expression* offset = constant(expression.of[1]);
    if (offset == nullptr) {
        const std::string first = expression.of.size() < 3 ? "" : counted(expression.of[2], "byte") + " of ";
        return first + whole + ", after " + as_many(expression.of[1]);
    }
    const std::string begin = std::to_string(offset->number + 1);
    if (expression.of.size() < 3) return whole + " from byte " + begin + " on";
    const Expression* count = constant(expression.of[2]);
    if (count == nullptr) return as_many(expression.of[2]) + " from byte " + begin + " of " + whole + " on";
    if (count->number == 1) return "byte " + begin + " of " + whole;
    if (offset->number == 0) return "the first " + std::to_string(count->number) + " bytes of " + whole;
    return "bytes " + begin + " to " + std::to_string(offset->number + count->number) + " of " + whole;
}

std::string Speaker::as_many(const Expression& number) const
{
    if (number.kind == Kind::kLength) return "as many bytes as " + value(number.of[0]) + " has";
    return value(number) + " bytes";
}

std::string Speaker::computed(const Expression& expression) const
{
    std::vector<std::string> operands;
    operands.reserve(expression.of.size());
    for (const Expression& one : expression.of) operands.push_back(value(one));
    switch (expression.kind) {
        case Kind::kJoined:
            return joined_words(operands, "and") + ", concatenated";
        case Kind::kConverted:
            return operands[0] + " " + std::string(expression.conversion->what);
        case Kind::kLength:
            return "the length of " + operands[0];
        case Kind::kCount:
            return "the number of times " + operands[1] + " occurs in " + operands[0];
        case Kind::kSum: {
            const Expression& first = expression.of[0];
            const bool counts_items =
                operands.size() == 2 && operands[1] == "1" && first.kind == Kind::kCount;
            if (counts_items) {
                return "the number of parts of " + value(first.of[0]) + " separated by " + value(first.of[1]);
            }
            std::string sum = operands[0];
            for (std::size_t i = 1; i < operands.size(); ++i) {
                const bool is_less = operands[i].starts_with('-');
                sum += is_less ? " - " + operands[i].substr(1) : " + " + operands[i];
            }
            return sum;
        }
        case Kind::kLarger:
            return "the larger of " + joined_words(operands, "and");
        case Kind::kDays:
            return "the number of days in month " + bracketed(operands[1]) + " of year " +
                   bracketed(operands[0]);
        case Kind::kCell:
            return "the " + std::string(table_->columns[static_cast<std::size_t>(expression.of[0].number)]) +
                   " of the first matching row";
        default:
            return "";
    }
}

}  // namespace ostrel::rules
