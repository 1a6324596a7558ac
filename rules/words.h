// The functions with which descriptions are written. README.md explains them.
#ifndef OSTREL_RULES_WORDS_H
#define OSTREL_RULES_WORDS_H

#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

#include "rules/sets.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// Words and Numbers are the alternatives that a condition lists.
using Words = std::vector<std::string_view>;
using Numbers = std::vector<long long>;

// it is the default subject, which is the item of a list or else the first argument.
inline constexpr char it[] = "";

// Strings and numbers.
inline Expression make(Expression::Kind kind, std::vector<Expression> of) { return {kind, std::move(of)}; }
Expression literal(std::string_view text);
Expression converted(const Conversion& conversion, Expression text);
inline Expression model() { return make(Expression::Kind::kModel, {}); }
inline Expression account_realm() { return make(Expression::Kind::kAccountRealm, {}); }
inline Expression setup_realm() { return make(Expression::Kind::kSetupRealm, {}); }
inline Expression nowhere() { return make(Expression::Kind::kNowhere, {}); }
inline Expression index() { return make(Expression::Kind::kIndex, {}); }
Expression before_first(Expression text, std::string_view separator);
Expression before_last(Expression text, std::string_view separator);
Expression after_first(Expression text, std::string_view separator);
Expression after_last(Expression text, std::string_view separator);
Expression through_last(Expression text, std::string_view separator);
Expression slice(Expression text, Expression offset);
Expression slice(Expression text, Expression offset, Expression count);
Expression joined(std::initializer_list<Expression> texts);
Expression called(std::string_view part, Expression piece);  // part is the name of the piece in sentences
Expression length(Expression text = it);
Expression count(Expression text, Expression byte);
Expression items(Expression text, std::string_view separator);  // the number of items
Expression sum(std::initializer_list<Expression> numbers);
Expression larger(std::initializer_list<Expression> numbers);
Expression days(Expression year, Expression month);  // 0 if the month is invalid
Expression cell(int column);                         // the cell in the row that a condition last found

// Conditions. If no string or number is given, they test the default subject.
Condition always();
Condition null(Expression argument);
Condition empty(Expression text = it);
Condition shorter_than(Expression text, Expression bytes);
inline Condition shorter_than(Expression bytes) { return shorter_than(it, std::move(bytes)); }
Condition longer_than(Expression text, Expression bytes);
inline Condition longer_than(Expression bytes) { return longer_than(it, std::move(bytes)); }
Condition length_is(Expression text, Numbers lengths);
inline Condition length_is(Numbers lengths) { return length_is(it, std::move(lengths)); }
Condition outside(Expression text, Expression set);
inline Condition outside(Expression set) { return outside(it, std::move(set)); }
Condition one_of(Expression text, Words words);
inline Condition one_of(Words words) { return one_of(it, std::move(words)); }
Condition begins_with(Expression text, Words words);
inline Condition begins_with(Words words) { return begins_with(it, std::move(words)); }
Condition ends_with(Expression text, Expression suffix);
Condition below(Expression number, Expression limit);
inline Condition below(Expression limit) { return below(it, std::move(limit)); }
Condition above(Expression number, Expression limit);
inline Condition above(Expression limit) { return above(it, std::move(limit)); }
Condition among(Expression number, Numbers numbers);
inline Condition among(Numbers numbers) { return among(it, std::move(numbers)); }
Condition between(Expression number, long long lowest, long long highest);
Condition multiple(Expression number, Expression of);
Condition equal(Expression one, Expression other);
Condition contains(Expression text, Expression part);
Condition has_shape(Expression text, std::vector<Shape> shapes);
inline Condition has_shape(std::vector<Shape> shapes) { return has_shape(it, std::move(shapes)); }
Condition fails(const Grammar& grammar, Expression text = it);
Condition in_table(const Table& table, std::vector<Match> matches);
Condition refused_by(std::string_view check, std::vector<Expression> arguments = {it});
Condition listed_by_driver(Expression number, int first, int highest);
Condition last_item();
Condition all_of(std::vector<Condition> parts);
Condition any_of(std::vector<Condition> parts);
Condition not_(Condition condition);
Condition ignoring_case(Condition condition);
Condition because(std::string_view id, Condition condition);

// Negations of some of these conditions.
inline Condition none_of(Expression text, Words words)
{
    return not_(one_of(std::move(text), std::move(words)));
}
inline Condition none_of(Words words) { return none_of(it, std::move(words)); }
inline Condition not_empty(Expression text = it) { return not_(empty(std::move(text))); }
inline Condition length_not(Expression text, Numbers n)
{
    return not_(length_is(std::move(text), std::move(n)));
}
inline Condition length_not(Numbers n) { return length_not(it, std::move(n)); }
inline Condition not_among(Expression number, Numbers n)
{
    return not_(among(std::move(number), std::move(n)));
}
inline Condition not_equal(Expression one, Expression other)
{
    return not_(equal(std::move(one), std::move(other)));
}
inline Condition lacks_shape(Expression text, std::vector<Shape> s)
{
    return not_(has_shape(std::move(text), std::move(s)));
}
inline Condition lacks_shape(std::vector<Shape> s) { return lacks_shape(it, std::move(s)); }

// Groups of a shape.
Group one(std::string_view bytes);
Group some(const Set& set, std::size_t exactly);
Group some(const Set& set, std::size_t least, std::size_t most);
Group printing(Group group, Line line);

// Lines.
inline Line line(std::string_view text) { return {text}; }  // all streams are flushed afterwards
inline Line unflushed(std::string_view text) { return {text, Line::Stream::kOut, false}; }
inline Line to_stderr(std::string_view text) { return {text, Line::Stream::kErr, false}; }

// Effects are the lines and writes of a step, in order.
struct Effects {
    Effects() = default;
    Effects(Line one) : lines{std::move(one)} {}
    Effects(Write one) : writes{std::move(one)} {}
    Effects(std::vector<Line> all) : lines(std::move(all)) {}
    Effects(std::vector<Line> all, std::vector<Write> also) : lines(std::move(all)), writes(std::move(also))
    {
    }

    std::vector<Line> lines;
    std::vector<Write> writes;
};

// Steps.
Code its_code();                                                      // the result of the other check
Code its_code(std::initializer_list<std::pair<int, int>> exchanges);  // the same with some codes replaced
Step refuse(Code code, Condition condition, Effects effects = {});
Step accept(Condition condition = always(), Effects effects = {});
Step answer(Code code, Condition condition = always(), Effects effects = {});
Step print(Effects effects, Condition condition = always());
Step skip(Condition condition, Effects effects = {});
Step write(Expression target, Expression value);
Step remember(std::string_view name, Expression value);
Step when(Condition condition, std::vector<Step> steps, std::vector<Step> otherwise = {});
Step for_each(List list, std::vector<Step> steps);
Step reads(Expression argument);
Step asserts(Expression argument, std::string_view condition);  // the condition is printed for NULL
Step never_returns(Condition condition);
List list_of(Expression text, char separator, const Set& trimmed = {}, std::string_view called = {});
List keys_of(Expression blocks);

std::vector<Step> joined_steps(std::initializer_list<std::vector<Step>> lists);

// Arguments. Properties are added with methods, as in text("value", "a password").secret().
struct ArgumentWords : Argument {
    ArgumentWords&& in(std::string_view text) &&;  // the unit of the number
    ArgumentWords&& secret() &&;
    ArgumentWords&& asserts(std::string_view text) &&;  // the condition that is printed for NULL
    ArgumentWords&& needs(Expression bytes) &&;         // the size that the buffer must have
    ArgumentWords&& output() &&;                        // the buffer is not read
};
ArgumentWords text(std::string_view name, std::string_view what);
ArgumentWords buffer(std::string_view name, std::string_view what);
ArgumentWords blocks(std::string_view name, std::string_view what, std::size_t count, std::size_t distance);
ArgumentWords integer(std::string_view name, std::string_view what);
ArgumentWords natural(std::string_view name, std::string_view what);
ArgumentWords integer_out(std::string_view name, std::string_view what);

// Complete descriptions, of functions that return a result code and of functions that return a number.
Check check(std::string_view name, std::vector<ArgumentWords> arguments, std::vector<Step> steps);
Check number(std::string_view name, std::vector<ArgumentWords> arguments, std::vector<Step> steps);
std::vector<Check> joined_checks(std::initializer_list<std::vector<Check>> lists);

}  // namespace ostrel::rules

#endif
