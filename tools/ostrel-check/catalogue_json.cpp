#include <nlohmann/json.hpp>

#include "catalogue/case.h"
#include "constraints.h"
#include "explain.h"

namespace ostrel::tool {

using catalogue::Argument;
using catalogue::Function;
using catalogue::Kind;
using nlohmann::ordered_json;

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

ordered_json json_of(const catalogue::Exposure& exposure)
{
    ordered_json result = ordered_json::object();
    for (std::size_t i = 0; i < exposure.places.size(); ++i) {
        const catalogue::Places& places = exposure.places[i];
        ordered_json where = ordered_json::array();
        if (places.first) where.push_back("first");
        if (places.inside) where.push_back("inside");
        if (places.last) where.push_back("last");
        result[std::string(catalogue::hazards()[i].name)] = {
            {"where", where}, {"bytes", catalogue::utf8_from_bytes(places.bytes)}};
    }
    return result;
}

ordered_json json_of(const Argument& argument, const ordered_json& constraints, const Study& study,
                     std::size_t index)
{
    ordered_json result = {{"name", argument.name},
                           {"kind", name_of(argument.kind)},
                           {"what", argument.what},
                           {"output_only", argument.output_only}};
    if (argument.capacity > 0) result["capacity"] = argument.capacity;
    if (argument.blocks > 1) result["blocks"] = argument.blocks;
    if (!argument.keywords.empty()) result["keywords"] = argument.keywords;
    if (!argument.written.empty()) result["written"] = argument.written;
    if (!study.null[index].empty()) result["null"] = study.null[index];
    for (const catalogue::Exposure& exposure : study.exposures) {
        if (exposure.argument == &argument) result["may_contain"] = json_of(exposure);
    }
    if (!constraints.is_null()) result["constraints"] = constraints;
    return result;
}

ordered_json json_of(const Study& study, const ordered_json& constraints)
{
    const Function& function = *study.function;
    ordered_json result = {{"name", function.name},
                           {"family", function.family},
                           {"declaration", declaration_of(function)},
                           {"rule", function.rule},
                           {"answers", function.is_verdict ? "code" : "number"}};
    result["arguments"] = ordered_json::array();
    for (std::size_t i = 0; i < function.arguments.size(); ++i) {
        const ordered_json& given = constraints.is_null() ? constraints : constraints[i];
        result["arguments"].push_back(json_of(function.arguments[i], given, study, i));
    }
    result["codes"] = ordered_json::array();
    const auto add = [&](int code, std::string_view condition, const std::vector<std::string>& lines) {
        ordered_json entry = {
            {"code", code}, {"name", catalogue::constant(code)}, {"meaning", catalogue::meaning(code)}};
        if (!condition.empty()) entry["condition"] = condition;
        entry["prints"] = lines;
        result["codes"].push_back(entry);
    };
    if (function.is_verdict) add(0, "", study.accepted_lines);
    for (const CodeStudy& code : study.codes) add(code.code->code, code.code->condition, code.lines);
    result["oddities"] = ordered_json::array();
    for (const catalogue::Oddity& oddity : study.oddities) {
        result["oddities"].push_back({{"title", oddity.title}, {"text", oddity.text}});
    }
    return result;
}

}  // namespace

std::string list_json()
{
    ordered_json result = {{"version", OSTREL_VERSION}};
    result["checks"] = ordered_json::array();
    const ordered_json all = ordered_json::parse(constraints());
    for (const Function& function : catalogue::functions()) {
        const auto found = all.find(function.name);
        result["checks"].push_back(json_of(study(function), found == all.end() ? ordered_json() : *found));
    }
    return result.dump(1) + "\n";
}

}  // namespace ostrel::tool
