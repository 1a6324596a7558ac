#include "rules/words.h"

namespace ostrel::rules {

namespace {

Expression cut(Expression::Kind kind, Expression text, std::string_view separator)
{
    return make(kind, {std::move(text), literal(separator)});
}

}  // namespace

Expression literal(std::string_view text)
{
    Expression result = make(Expression::Kind::kText, {});
    result.text = text;
    return result;
}

Expression converted(const Conversion& conversion, Expression text)
{
    Expression result = make(Expression::Kind::kConverted, {std::move(text)});
    result.conversion = &conversion;
    return result;
}

Expression before_first(Expression text, std::string_view separator)
{
    return cut(Expression::Kind::kBeforeFirst, std::move(text), separator);
}

Expression before_last(Expression text, std::string_view separator)
{
    return cut(Expression::Kind::kBeforeLast, std::move(text), separator);
}

Expression after_first(Expression text, std::string_view separator)
{
    return cut(Expression::Kind::kAfterFirst, std::move(text), separator);
}

Expression after_last(Expression text, std::string_view separator)
{
    return cut(Expression::Kind::kAfterLast, std::move(text), separator);
}

Expression through_last(Expression text, std::string_view separator)
{
    return cut(Expression::Kind::kThroughLast, std::move(text), separator);
}

Expression slice(Expression text, Expression offset)
{
    return make(Expression::Kind::kSlice, {std::move(text), std::move(offset)});
}

Expression slice(Expression text, Expression offset, Expression count)
{
    return make(Expression::Kind::kSlice, {std::move(text), std::move(offset), std::move(count)});
}

Expression joined(std::initializer_list<Expression> texts) { return make(Expression::Kind::kJoined, texts); }

Expression called(std::string_view part, Expression piece)
{
    piece.part = part;
    return piece;
}

Expression length(Expression text) { return make(Expression::Kind::kLength, {std::move(text)}); }

Expression count(Expression text, Expression byte)
{
    return make(Expression::Kind::kCount, {std::move(text), std::move(byte)});
}

Expression items(Expression text, std::string_view separator)
{
    return sum({count(std::move(text), literal(separator)), 1});
}

Expression sum(std::initializer_list<Expression> numbers) { return make(Expression::Kind::kSum, numbers); }
Expression larger(std::initializer_list<Expression> numbers)
{
    return make(Expression::Kind::kLarger, numbers);
}

Expression days(Expression year, Expression month)
{
    return make(Expression::Kind::kDays, {std::move(year), std::move(month)});
}

Expression cell(int column) { return make(Expression::Kind::kCell, {column}); }

}  // namespace ostrel::rules
