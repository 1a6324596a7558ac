#include "rules/words.h"

namespace ostrel::rules {

namespace {

Step step(Step::Kind kind, Condition condition, Effects effects)
{
    Step result{kind};
    result.condition = std::move(condition);
    result.lines = std::move(effects.lines);
    result.writes = std::move(effects.writes);
    return result;
}

ArgumentWords argument(Argument::Kind kind, std::string_view name, std::string_view what)
{
    ArgumentWords result;
    result.name = name;
    result.kind = kind;
    result.what = what;
    return result;
}

}  // namespace

Code its_code() { return its_code({}); }

Code its_code(std::initializer_list<std::pair<int, int>> exchanges)
{
    Code code = 0;
    code.is_its = true;
    code.exchanges = exchanges;
    return code;
}

Step refuse(Code code, Condition condition, Effects effects)
{
    Step result = step(Step::Kind::kRefuse, std::move(condition), std::move(effects));
    result.code = std::move(code);
    return result;
}

Step accept(Condition condition, Effects effects)
{
    return answer(0, std::move(condition), std::move(effects));
}

Step answer(Code code, Condition condition, Effects effects)
{
    Step result = step(Step::Kind::kAccept, std::move(condition), std::move(effects));
    result.code = std::move(code);
    return result;
}

Step print(Effects effects, Condition condition)
{
    return step(Step::Kind::kPrint, std::move(condition), std::move(effects));
}

Step skip(Condition condition, Effects effects)
{
    return step(Step::Kind::kSkip, std::move(condition), std::move(effects));
}

Step write(Expression target, Expression value)
{
    return step(Step::Kind::kWrite, always(), Write{std::move(target), std::move(value)});
}

Step remember(std::string_view name, Expression value)
{
    Step result{Step::Kind::kRemember};
    result.name = name;
    result.value = std::move(value);
    return result;
}

Step when(Condition condition, std::vector<Step> steps, std::vector<Step> otherwise)
{
    Step result = step(Step::Kind::kWhen, std::move(condition), {});
    result.steps = std::move(steps);
    result.otherwise = std::move(otherwise);
    return result;
}

Step for_each(List list, std::vector<Step> steps)
{
    Step result{Step::Kind::kForEach};
    result.list = std::move(list);
    result.steps = std::move(steps);
    return result;
}

Step reads(Expression argument)
{
    Step result{Step::Kind::kReads};
    result.value = std::move(argument);
    return result;
}

Step asserts(Expression argument, std::string_view condition)
{
    Step result = reads(std::move(argument));
    result.name = condition;
    return result;
}

Step never_returns(Condition condition) { return step(Step::Kind::kNeverReturns, std::move(condition), {}); }

List list_of(Expression text, char separator, const Set& trimmed, std::string_view called)
{
    return {std::move(text), separator, trimmed, called};
}
List keys_of(Expression blocks) { return {std::move(blocks)}; }

std::vector<Step> joined_steps(std::initializer_list<std::vector<Step>> lists)
{
    std::vector<Step> result;
    for (const std::vector<Step>& list : lists) result.insert(result.end(), list.begin(), list.end());
    return result;
}

ArgumentWords&& ArgumentWords::in(std::string_view text) &&
{
    unit = text;
    return std::move(*this);
}

ArgumentWords&& ArgumentWords::secret() &&
{
    is_secret = true;
    return std::move(*this);
}

ArgumentWords&& ArgumentWords::asserts(std::string_view text) &&
{
    asserted = text;
    return std::move(*this);
}

ArgumentWords&& ArgumentWords::needs(Expression bytes) &&
{
    room = std::move(bytes);
    return std::move(*this);
}

ArgumentWords&& ArgumentWords::output() &&
{
    is_output = true;
    return std::move(*this);
}

ArgumentWords text(std::string_view name, std::string_view what)
{
    return argument(Argument::Kind::kText, name, what);
}

ArgumentWords buffer(std::string_view name, std::string_view what)
{
    return argument(Argument::Kind::kBuffer, name, what);
}

ArgumentWords blocks(std::string_view name, std::string_view what, std::size_t count, std::size_t distance)
{
    ArgumentWords result = argument(Argument::Kind::kBlocks, name, what);
    result.blocks = count;
    result.block_size = distance;
    return result;
}

ArgumentWords integer(std::string_view name, std::string_view what)
{
    return argument(Argument::Kind::kInteger, name, what);
}

ArgumentWords natural(std::string_view name, std::string_view what)
{
    return argument(Argument::Kind::kUnsigned, name, what);
}

ArgumentWords integer_out(std::string_view name, std::string_view what)
{
    return argument(Argument::Kind::kIntegerOut, name, what);
}

Check check(std::string_view name, std::vector<ArgumentWords> arguments, std::vector<Step> steps)
{
    Check result;
    result.name = name;
    result.arguments.assign(arguments.begin(), arguments.end());
    result.steps = std::move(steps);
    return result;
}

std::vector<Check> joined_checks(std::initializer_list<std::vector<Check>> lists)
{
    std::vector<Check> result;
    for (const std::vector<Check>& list : lists) result.insert(result.end(), list.begin(), list.end());
    return result;
}

Check number(std::string_view name, std::vector<ArgumentWords> arguments, std::vector<Step> steps)
{
    Check result = check(name, std::move(arguments), std::move(steps));
    result.is_verdict = false;
    return result;
}

}  // namespace ostrel::rules
