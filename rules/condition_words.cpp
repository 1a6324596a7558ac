#include "rules/words.h"

namespace ostrel::rules {

using Kind = Condition::Kind;

Condition always() { return {}; }
Condition null(Expression argument) { return {.kind = Kind::kNull, .operands = {std::move(argument)}}; }
Condition empty(Expression text) { return {.kind = Kind::kEmpty, .operands = {std::move(text)}}; }

Condition shorter_than(Expression text, Expression bytes)
{
    return {.kind = Kind::kShorter, .operands = {std::move(text), std::move(bytes)}};
}

Condition longer_than(Expression text, Expression bytes)
{
    return {.kind = Kind::kLonger, .operands = {std::move(text), std::move(bytes)}};
}

Condition length_is(Expression text, Numbers lengths)
{
    return {.kind = Kind::kLength, .operands = {std::move(text)}, .numbers = std::move(lengths)};
}

Condition outside(Expression text, Expression set)
{
    return {.kind = Kind::kOutside, .operands = {std::move(text), std::move(set)}};
}

Condition one_of(Expression text, Words words)
{
    return {.kind = Kind::kKeyword, .operands = {std::move(text)}, .words = std::move(words)};
}

Condition begins_with(Expression text, Words words)
{
    return {.kind = Kind::kPrefix, .operands = {std::move(text)}, .words = std::move(words)};
}

Condition ends_with(Expression text, Expression suffix)
{
    return {.kind = Kind::kSuffix, .operands = {std::move(text), std::move(suffix)}};
}

Condition below(Expression number, Expression limit)
{
    return {.kind = Kind::kBelow, .operands = {std::move(number), std::move(limit)}};
}

Condition above(Expression number, Expression limit)
{
    return {.kind = Kind::kAbove, .operands = {std::move(number), std::move(limit)}};
}

Condition among(Expression number, Numbers numbers)
{
    return {.kind = Kind::kAmong, .operands = {std::move(number)}, .numbers = std::move(numbers)};
}

Condition between(Expression number, long long lowest, long long highest)
{
    return {.kind = Kind::kBetween, .operands = {std::move(number)}, .numbers = {lowest, highest}};
}

Condition multiple(Expression number, Expression of)
{
    return {.kind = Kind::kMultiple, .operands = {std::move(number), std::move(of)}};
}

Condition equal(Expression one, Expression other)
{
    return {.kind = Kind::kEqual, .operands = {std::move(one), std::move(other)}};
}

Condition contains(Expression text, Expression part)
{
    return {.kind = Kind::kContains, .operands = {std::move(text), std::move(part)}};
}

Condition has_shape(Expression text, std::vector<Shape> shapes)
{
    return {.kind = Kind::kShape, .operands = {std::move(text)}, .shapes = std::move(shapes)};
}

Condition fails(const Grammar& grammar, Expression text)
{
    return {.kind = Kind::kGrammar, .operands = {std::move(text)}, .grammar = &grammar};
}

Condition in_table(const Table& table, std::vector<Match> matches)
{
    return {.kind = Kind::kRow, .table = &table, .matches = std::move(matches)};
}

Condition refused_by(std::string_view check, std::vector<Expression> arguments)
{
    return {.kind = Kind::kRefusedBy, .operands = std::move(arguments), .check = check};
}

Condition listed_by_driver(Expression number, int first, int highest)
{
    return {.kind = Kind::kListed, .operands = {std::move(number)}, .numbers = {first, highest}};
}

Condition last_item() { return {.kind = Kind::kLastItem}; }

Condition all_of(std::vector<Condition> parts) { return {.kind = Kind::kAllOf, .parts = std::move(parts)}; }

Condition any_of(std::vector<Condition> parts) { return {.kind = Kind::kAnyOf, .parts = std::move(parts)}; }

Condition not_(Condition condition)
{
    if (condition.kind != Kind::kAllOf && condition.kind != Kind::kAnyOf) {
        condition.is_negated = !condition.is_negated;
        return condition;
    }
    condition.kind = condition.kind == Kind::kAllOf ? Kind::kAnyOf : Kind::kAllOf;
    for (Condition& part : condition.parts) part = not_(std::move(part));
    return condition;
}

Condition ignoring_case(Condition condition)
{
    condition.ignores_case = true;
    return condition;
}

Condition because(std::string_view id, Condition condition)
{
    condition.id = id;
    return condition;
}

Group one(std::string_view bytes) { return {Set(bytes)}; }
Group some(const Set& set, std::size_t exactly) { return {set, exactly, exactly}; }
Group some(const Set& set, std::size_t least, std::size_t most) { return {set, least, most}; }

Group printing(Group group, Line line)
{
    group.lines.push_back(std::move(line));
    return group;
}

}  // namespace ostrel::rules
