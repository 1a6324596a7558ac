// Descriptions of a check's arguments in words.
#include <algorithm>

#include "rules/explain.h"
#include "rules/null.h"
#include "rules/phrases.h"
#include "rules/walk.h"

namespace ostrel::rules {

namespace {

std::string unit_of(const Argument& argument)
{
    return argument.unit.empty() ? "" : ", in " + std::string(argument.unit);
}

std::string room_of(const Argument& argument, const Speaker& speaker)
{
    if (argument.kind == Argument::Kind::kBlocks) {
        return std::to_string(argument.blocks) + " strings, " + std::to_string(argument.block_size) +
               " bytes apart";
    }
    if (argument.kind != Argument::Kind::kBuffer) return "";
    if (argument.room) return speaker.value(*argument.room) + ", in bytes";
    return "the length of the string and its terminator";
}

void add_written(const std::vector<Step>& steps, std::size_t argument, const Speaker& speaker,
                 std::vector<std::string>& values)
{
    for (const Step& step : steps) {
        const Speaker inner = step.list ? speaker.of_items(*step.list) : speaker;
        for (const Write& write : step.writes) {
            const bool is_it = write.target.kind == Expression::Kind::kName && write.target.slot == argument;
            if (!is_it && write.target.kind != Expression::Kind::kItem) continue;
            const std::string value =
                inner.value(write.value) +
                (write.is_terminated ? "" : " (without a terminator or a bounds check)");
            if (std::ranges::find(values, value) == values.end()) values.push_back(value);
        }
        add_written(step.steps, argument, inner, values);
        add_written(step.otherwise, argument, inner, values);
    }
}

std::string written(const Argument& argument, const std::vector<std::string>& values)
{
    const bool is_text = argument.kind != Argument::Kind::kIntegerOut;
    return joined_words(values, "or") +
           (is_text && !values.empty() ? "; bytes after a new terminator are unchanged" : "");
}

}  // namespace

std::vector<SaidArgument> said_arguments(const Check& check, const Build& build)
{
    const Speaker speaker(check, build);
    std::vector<SaidArgument> result;
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        const Argument& argument = check.arguments[i];
        std::vector<std::string> values;
        if (is_written(argument)) add_written(check.steps, i, speaker, values);
        result.push_back({std::string(argument.what) + unit_of(argument), room_of(argument, speaker),
                          null_does(check, i, build), written(argument, values)});
    }
    return result;
}

std::string how_numbers_are_read(const Build& build)
{
    const auto read = [&](const char* text) {
        return std::string(text) + " as " + std::to_string(read_number(text, build.atoi).value);
    };
    return "Numbers are read as by atoi: leading white space and anything after the digits are ignored, and "
           "a "
           "string without digits is 0. Gateways differ in how they read a number that does not fit in an "
           "int; this one reads " +
           read("2147483648") + ", and " + read("99999999999999999999") + ".";
}

}  // namespace ostrel::rules
