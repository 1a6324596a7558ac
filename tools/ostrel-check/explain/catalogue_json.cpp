#include "explain/catalogue_json.h"

#include <nlohmann/json.hpp>

#include "catalogue/result_codes.h"
#include "explain/constraints.h"
#include "explain/explain.h"
#include "explain/hazards.h"
#include "judge/reason.h"
#include "rules/explain.h"
#include "rules/walk.h"

namespace ostrel::tool {

using catalogue::Function;
using catalogue::Kind;
using nlohmann::ordered_json;
using rules::Said;
using rules::SaidLine;

namespace {

std::string_view name_of(Kind kind)
{
    switch (kind) {
        case Kind::kText:
            return "text";
        case Kind::kBuffer:
            return "buffer";
        case Kind::kBlocks:
            return "blocks";
        case Kind::kInteger:
            return "integer";
        case Kind::kUnsigned:
            return "unsigned";
        case Kind::kIntegerOut:
            break;
    }
    return "integer_out";
}

std::string_view name_of(rules::Step::Kind kind)
{
    switch (kind) {
        case rules::Step::Kind::kRefuse:
            return "refuse";
        case rules::Step::Kind::kAccept:
            return "accept";
        case rules::Step::Kind::kPrint:
            return "print";
        case rules::Step::Kind::kSkip:
            return "skip";
        case rules::Step::Kind::kWrite:
            return "write";
        case rules::Step::Kind::kRemember:
            return "keep";
        case rules::Step::Kind::kWhen:
            return "case";
        case rules::Step::Kind::kForEach:
            return "each";
        case rules::Step::Kind::kReads:
            return "reads";
        case rules::Step::Kind::kNeverReturns:
            break;
    }
    return "never_return";
}

ordered_json json_of(const std::vector<Said>& steps);

ordered_json json_of(const SaidLine& line)
{
    const bool is_error = line.stream == rules::Line::Stream::kErr;
    ordered_json result = {{"line", line.text}, {"to", is_error ? "stderr" : "stdout"}};
    if (!is_error) result["flushed"] = line.is_flushed;
    if (!line.when.empty()) result["when"] = line.when;
    return result;
}

ordered_json json_of(const Said& step)
{
    ordered_json result = {{"step", name_of(step.kind)}, {"text", step.text}};
    if (step.code) result["code"] = *step.code;
    for (const SaidLine& line : step.lines) result["prints"].push_back(json_of(line));
    if (!step.writes.empty()) result["writes"] = step.writes;
    if (!step.uses.empty()) result["uses"] = json_of(step.uses);
    if (!step.steps.empty()) result["steps"] = json_of(step.steps);
    if (!step.otherwise.empty()) result["otherwise"] = json_of(step.otherwise);
    return result;
}

ordered_json json_of(const std::vector<Said>& steps)
{
    ordered_json result = ordered_json::array();
    for (const Said& step : steps) result.push_back(json_of(step));
    return result;
}

ordered_json json_of(const rules::Argument& argument, const rules::SaidArgument& said)
{
    ordered_json result = {{"name", argument.name},
                           {"kind", name_of(argument.kind)},
                           {"what", argument.what},
                           {"output_only", argument.is_only_written()}};
    if (!argument.unit.empty()) result["unit"] = argument.unit;
    if (argument.is_secret) result["secret"] = true;
    if (!said.room.empty()) result["room"] = said.room;
    if (argument.blocks > 1) {
        result["blocks"] = argument.blocks;
        result["block_size"] = argument.block_size;
    }
    if (!said.written.empty()) result["written"] = said.written;
    if (!said.null.empty()) result["null"] = said.null;
    return result;
}

ordered_json json_of(const Function& function, const ordered_json& constraints)
{
    const rules::Check& check = *function.check;
    const rules::Explanation explanation = rules::explain(check, gateway());
    ordered_json result = {{"name", function.name},
                           {"family", function.family},
                           {"declaration", declaration_of(function)},
                           {"rule", explanation.accepted},
                           {"answers", check.is_verdict ? "code" : "number"},
                           {"reads_numbers", !explanation.numbers.empty()}};
    result["arguments"] = ordered_json::array();
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        ordered_json argument = json_of(check.arguments[i], explanation.arguments[i]);
        add_hazards(argument, function, i);
        if (!constraints.is_null() && !constraints[i].is_null()) argument["constraints"] = constraints[i];
        result["arguments"].push_back(std::move(argument));
    }
    result["codes"] = ordered_json::array();
    const auto add = [&](int code) {
        result["codes"].push_back(
            {{"code", code}, {"name", catalogue::constant(code)}, {"meaning", catalogue::meaning(code)}});
    };
    if (check.is_verdict) add(0);
    for (const int code : explanation.codes) add(code);
    result["steps"] = json_of(explanation.steps);
    for (const rules::Table* table : rules::tables(check))
        result["tables"].push_back({{"columns", table->columns}, {"rows", table->rows}});
    return result;
}

ordered_json constraints_of(const Function& function, const ordered_json& all)
{
    const auto found = all.find(function.name);
    return found == all.end() ? ordered_json() : *found;
}

}  // namespace

std::string explain_json(const Function& function)
{
    const ordered_json all = ordered_json::parse(constraints());
    return json_of(function, constraints_of(function, all)).dump(1) + "\n";
}

std::string list_json(const Selection& selection)
{
    ordered_json result = {{"version", OSTREL_VERSION}};
    result["texts"] =
        "In strings that contain bytes of values, such as characters and keywords, each character is the "
        "byte of "
        "the same number: \u00e9 is 0xE9. In UTF-8, \u00e9 is the two bytes 0xC3 and 0xA9, here "
        "\u00c3\u00a9.";
    result["checks"] = ordered_json::array();
    const ordered_json all = ordered_json::parse(constraints());
    for (const Function* function : selection)
        result["checks"].push_back(json_of(*function, constraints_of(*function, all)));
    return result.dump(1) + "\n";
}

}  // namespace ostrel::tool
