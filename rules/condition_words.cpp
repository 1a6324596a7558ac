#include "rules/words.h"

namespace ostrel::rules {

namespace {

using Kind = Condition::Kind;

Condition condition(Kind kind, std::vector<Expression> operands)
{
    Condition result;
    result.kind = kind;
    result.operands = std::move(operands);
    return result;
}

}  // namespace

Condition always() { return {}; }
Condition null(Expression argument) { return condition(Kind::kNull, {std::move(argument)}); }
Condition empty(Expression text) { return condition(Kind::kEmpty, {std::move(text)}); }

Condition shorter_than(Expression text, Expression bytes)
{
    return condition(Kind::kShorter, {std::move(text), std::move(bytes)});
}

Condition longer_than(Expression text, Expression bytes)
{
    return condition(Kind::kLonger, {std::move(text), std::move(bytes)});
}

Condition length_is(Expression text, Numbers lengths)
{
    Condition result = condition(Kind::kLength, {std::move(text)});
    result.numbers = std::move(lengths);
    return result;
}

Condition outside(Expression text, Expression set)
{
    return condition(Kind::kOutside, {std::move(text), std::move(set)});
}

Condition one_of(Expression text, Words words)
{
    Condition result = condition(Kind::kKeyword, {std::move(text)});
    result.words = std::move(words);
    return result;
}

Condition begins_with(Expression text, Words words)
{
    Condition result = condition(Kind::kPrefix, {std::move(text)});
    result.words = std::move(words);
    return result;
}

Condition ends_with(Expression text, Expression suffix)
{
    return condition(Kind::kSuffix, {std::move(text), std::move(suffix)});
}

Condition below(Expression number, Expression limit)
{
    return condition(Kind::kBelow, {std::move(number), std::move(limit)});
}

Condition above(Expression number, Expression limit)
{
    return condition(Kind::kAbove, {std::move(number), std::move(limit)});
}

Condition among(Expression number, Numbers numbers)
{
    Condition result = condition(Kind::kAmong, {std::move(number)});
    result.numbers = std::move(numbers);
    return result;
}

Condition between(Expression number, long long lowest, long long highest)
{
    Condition result = condition(Kind::kBetween, {std::move(number)});
    result.numbers = {lowest, highest};
    return result;
}

Condition multiple(Expression number, Expression of)
{
    return condition(Kind::kMultiple, {std::move(number), std::move(of)});
}

Condition equal(Expression one, Expression other)
{
    return condition(Kind::kEqual, {std::move(one), std::move(other)});
}

Condition contains(Expression text, Expression part)
{
    return condition(Kind::kContains, {std::move(text), std::move(part)});
}

Condition has_shape(Expression text, std::vector<Shape> shapes)
{
    Condition result = condition(Kind::kShape, {std::move(text)});
    result.shapes = std::move(shapes);
    return result;
}

Condition fails(const Grammar& grammar, Expression text)
{
    Condition result = condition(Kind::kGrammar, {std::move(text)});
    result.grammar = &grammar;
    return result;
}

Condition in_table(const Table& table, std::vector<Match> matches)
{
    Condition result = condition(Kind::kRow, {});
    result.table = &table;
    result.matches = std::move(matches);
    return result;
}

Condition refused_by(std::string_view check, std::vector<Expression> arguments)
{
    Condition result = condition(Kind::kRefusedBy, std::move(arguments));
    result.check = check;
    return result;
}

Condition listed_by_driver(Expression number, int first, int highest)
{
    Condition result = condition(Kind::kListed, {std::move(number)});
    result.numbers = {first, highest};
    return result;
}

Condition last_item() { return condition(Kind::kLastItem, {}); }

Condition all_of(std::vector<Condition> parts)
{
    Condition result = condition(Kind::kAllOf, {});
    result.parts = std::move(parts);
    return result;
}

Condition any_of(std::vector<Condition> parts)
{
    Condition result = condition(Kind::kAnyOf, {});
    result.parts = std::move(parts);
    return result;
}

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
