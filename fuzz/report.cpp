#include "fuzz/report.h"

#include <nlohmann/json.hpp>

#include "catalogue/case.h"

namespace ostrel::fuzz {

using catalogue::json_from_value;
using nlohmann::ordered_json;

namespace {

ordered_json texts_of(const std::vector<catalogue::Value>& values)
{
    ordered_json result = ordered_json::array();
    for (const catalogue::Value& value : values) result.emplace_back(json_from_value(value));
    return result;
}

std::string row(const catalogue::Function& function, const std::vector<catalogue::Value>& values,
                const model::Answer& answer)
{
    ordered_json result;
    result["check"] = function.name;
    result["args"] = texts_of(values);
    result["code"] = answer.code;
    if (!answer.out.empty()) result["out"] = catalogue::utf8_from_bytes(answer.out);
    if (!answer.flushed) result["flushed"] = false;
    if (!answer.err.empty()) result["err"] = catalogue::utf8_from_bytes(answer.err);
    if (!answer.after.empty()) result["after"] = texts_of(answer.after);
    return result.dump();
}

}  // namespace

std::string tell_difference(const catalogue::Function& function, const std::vector<catalogue::Value>& values,
                            const model::Answer& expected, const model::Answer& actual)
{
    return "differs: " + std::string(function.name) + "\nmodel:   " + row(function, values, expected) +
           "\nlibrary: " + row(function, values, actual) + "\n";
}

}  // namespace ostrel::fuzz
