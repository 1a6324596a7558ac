// Descriptions of conditions in words.

#include "rules/datum.h"
#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

using Kind = Condition::Kind;

std::vector<std::string> all_of_them(const std::vector<std::string_view>& words)
{
    std::vector<std::string> result;
    result.reserve(words.size());
    for (const std::string_view word : words) result.push_back(keyword_in_words(word));
    return result;
}

std::vector<std::string> all_of_them(const std::vector<long long>& numbers)
{
    std::vector<std::string> result;
    result.reserve(numbers.size());
    for (const long long number : numbers) result.push_back(std::to_string(number));
    return result;
}

std::string in_plural(std::string predicate)
{
    if (predicate.starts_with("has ")) return "have " + predicate.substr(4);
    if (predicate.starts_with("is ")) return "are " + predicate.substr(3);
    if (predicate.starts_with("contains ")) return "contain " + predicate.substr(9);
    return predicate;
}

std::string driver_list(long long first, long long highest)
{
    return " one of the channels up to " + std::to_string(highest) + " that are among the first " +
           std::to_string(first) + " listed by the wireless driver";
}

// choice returns "is a or b", "is neither a nor b", or "is not one of a, b and c".
std::string choice(const std::vector<std::string>& words, bool holds)
{
    if (words.size() == 1) return (holds ? "is " : "is not ") + words[0];
    if (holds) return "is " + joined_words(words, "or");
    return words.size() == 2 ? "is neither " + joined_words(words, "nor")
                             : "is not one of " + joined_words(words, "and");
}

}  // namespace

// counted returns "8 bytes", or "as many bytes as min_len says".
std::string Speaker::counted(const Expression& number, std::string_view unit) const
{
    const Expression* fixed = constant(number);
    return value(number) + " " + std::string(unit) + (fixed != nullptr && fixed->number == 1 ? "" : "s");
}

std::string Speaker::set(const Expression& expression) const
{
    const Expression* fixed = constant(expression);
    if (fixed != nullptr && fixed->kind == Expression::Kind::kSet) return in_words(fixed->set);
    return "the bytes of " + value(expression);
}

std::string Speaker::among(const Expression& expression, bool holds) const
{
    const Expression* fixed = constant(expression);
    const bool is_set = fixed != nullptr && fixed->kind == Expression::Kind::kSet;
    return std::string(holds ? "is one of " : "is not one of ") + (is_set ? "these: " : "") + set(expression);
}

// other names the second string in a comparison.
std::string Speaker::other(const Expression& expression) const
{
    const Expression* fixed = constant(expression);
    if (fixed != nullptr && fixed->kind == Expression::Kind::kText) return keyword_in_words(fixed->text);
    return value(expression);
}

bool Speaker::is_plural(const Expression& expression) const
{
    if (expression.kind != Expression::Kind::kSlice || expression.of.size() < 3) return false;
    if (!expression.part.empty()) return false;
    const Expression* count = constant(expression.of[2]);
    return count == nullptr || count->number != 1;
}

Clause Speaker::clause(const Condition& condition, bool holds) const
{
    holds = holds != condition.is_negated;
    Clause one = clause_of_kind(condition, holds);
    if (!condition.operands.empty() && is_plural(condition.operands[0]) &&
        one.subject == value(condition.operands[0])) {
        one.predicate = in_plural(one.predicate);
    }
    return one;
}

Clause Speaker::clause_of_kind(const Condition& condition, bool holds) const
{
    switch (condition.kind) {
        case Kind::kAlways:
            return {"", holds ? "always" : "never"};
        case Kind::kNull:
            return {value(condition.operands[0]), holds ? "is NULL" : "is not NULL"};
        case Kind::kOutside:
            return outside_clause(condition, holds);
        case Kind::kBelow:
        case Kind::kAbove:
        case Kind::kAmong:
        case Kind::kBetween:
        case Kind::kMultiple:
            return number_clause(condition, holds);
        case Kind::kRow:
            return row_clause(condition, holds);
        case Kind::kRefusedBy:
            return use_clause(condition, holds);
        case Kind::kListed:
            return {number(condition.operands[0]),
                    (holds ? "is" : "is not") + driver_list(condition.numbers[0], condition.numbers[1])};
        case Kind::kLastItem:
            return {item_.words, holds ? "is the last one" : "is not the last one"};
        case Kind::kAllOf:
        case Kind::kAnyOf:
            return parts_clause(condition, holds);
        default:
            return text_clause(condition, holds);
    }
}

Clause Speaker::text_clause(const Condition& condition, bool holds) const
{
    const Expression& judged = condition.operands[0];
    const auto say = [&](std::string_view yes, std::string_view no) {
        return Clause{value(judged), std::string(holds ? yes : no)};
    };
    const auto say_with = [&](std::string_view yes, std::string_view no, const std::string& rest) {
        return Clause{value(judged), std::string(holds ? yes : no) + rest};
    };
    switch (condition.kind) {
        case Kind::kEmpty:
            return say("is empty", "is not empty");
        case Kind::kShorter:
            return say_with("has fewer than ", "has at least ", counted(condition.operands[1], "byte"));
        case Kind::kLonger:
            return say_with("has more than ", "has at most ", counted(condition.operands[1], "byte"));
        case Kind::kLength: {
            const auto lengths = all_of_them(condition.numbers);
            const bool is_one = lengths == std::vector<std::string>{"1"};
            return say_with("has ", lengths.size() == 1 ? "does not have " : "has neither ",
                            joined_words(lengths, holds ? "or" : "nor") + (is_one ? " byte" : " bytes"));
        }
        case Kind::kKeyword: {
            const std::string any = condition.ignores_case ? ", ignoring case" : "";
            return {value(judged), choice(all_of_them(condition.words), holds) + any};
        }
        case Kind::kPrefix: {
            const std::string any = condition.ignores_case ? ", ignoring case" : "";
            return say_with("begins with ", "does not begin with ",
                            joined_words(all_of_them(condition.words), "or") + any);
        }
        case Kind::kSuffix:
            return say_with("ends with ", "does not end with ",
                            value(condition.operands[1]) + " after at least one other byte");
        case Kind::kEqual: {
            const Expression& to = condition.operands[1];
            if (is_number(judged) || is_number(to))
                return {number(judged), (holds ? "is " : "is not ") + number(to)};
            if (is_beginning(judged, to))
                return {value(judged.of[0]), (holds ? "begins with " : "does not begin with ") + value(to)};
            const std::string_view like = constant(to) != nullptr ? "" : "the same as ";
            return say_with("is ", "is not ", std::string(like) + other(to));
        }
        case Kind::kContains:
            return say_with("contains ", "does not contain ", value(condition.operands[1]));
        case Kind::kShape: {
            std::vector<std::string> shapes;
            shapes.reserve(condition.shapes.size());
            for (const Shape& shape : condition.shapes) shapes.push_back(in_words(shape));
            if (shapes.size() == 1) return say_with("has the form ", "does not have the form ", shapes[0]);
            std::string text;
            for (const std::string& shape : shapes) text += (text.empty() ? "" : "; ") + shape;
            return say_with("has one of the forms ", "has none of the forms ", text);
        }
        default:
            return say_with("is not ", "is ", std::string(condition.grammar->what));
    }
}

Clause Speaker::outside_clause(const Condition& condition, bool holds) const
{
    const Expression& judged = condition.operands[0];
    const std::string allowed = set(condition.operands[1]);
    const bool is_slice = judged.kind == Expression::Kind::kSlice && judged.of.size() == 3;
    const Expression* count = is_slice ? constant(judged.of[2]) : nullptr;
    if (count != nullptr && count->number == 1) {
        // If the string has no byte at this offset, the slice is empty and contains no byte outside the set.
        const Expression* offset = constant(judged.of[1]);
        const std::string none =
            offset != nullptr && offset->number == 0 ? value(judged.of[0]) + " is empty or " : "";
        return {(holds ? "" : none) + value(judged), among(condition.operands[1], !holds)};
    }
    return {value(judged), (holds ? "contains a byte other than " : "contains only ") + allowed};
}

// is_beginning returns whether judged is a prefix that has the same length as other.
bool Speaker::is_beginning(const Expression& judged, const Expression& other) const
{
    if (judged.kind != Expression::Kind::kSlice || judged.of.size() < 3) return false;
    const Expression* offset = constant(judged.of[1]);
    const Expression& count = judged.of[2];
    return offset != nullptr && offset->number == 0 && count.kind == Expression::Kind::kLength &&
           value(count.of[0]) == value(other);
}

Clause Speaker::number_clause(const Condition& condition, bool holds) const
{
    const Expression& judged = condition.operands[0];
    const bool is_limit = condition.kind == Kind::kBelow || condition.kind == Kind::kAbove;
    if (is_limit && judged.kind == Expression::Kind::kCount) {
        const bool is_below = condition.kind == Kind::kBelow;
        const std::string_view compared =
            is_below ? (holds ? "fewer than " : "at least ") : (holds ? "more than " : "at most ");
        return {value(judged.of[1]), "occurs in " + value(judged.of[0]) + " " + std::string(compared) +
                                         counted(condition.operands[1], "time")};
    }
    const std::string subject = number(condition.operands[0]);
    if (condition.kind == Kind::kAmong) return {subject, choice(all_of_them(condition.numbers), holds)};
    if (condition.kind == Kind::kBetween) {
        return {subject,
                (holds ? "is from " : "is not from ") + joined_words(all_of_them(condition.numbers), "to")};
    }
    const std::string limit = number(condition.operands[1]);
    switch (condition.kind) {
        case Kind::kBelow:
            return {subject, (holds ? "is below " : "is at least ") + limit};
        case Kind::kAbove:
            return {subject, (holds ? "is above " : "is at most ") + limit};
        default:
            return {subject, (holds ? "is a multiple of " : "is not a multiple of ") + limit};
    }
}

}  // namespace ostrel::rules
