#include "oracle/call_comparer.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>

#include "catalogue/value_json.h"

namespace ostrel::oracle {

using calling::Caller;
using calling::Written;
using catalogue::Function;
using nlohmann::ordered_json;
using rules::Answer;
using rules::Value;

namespace {

ordered_json json_of(const std::vector<Value>& values)
{
    ordered_json result = ordered_json::array();
    for (const Value& value : values) result.emplace_back(catalogue::json_from_value(value));
    return result;
}

ordered_json call_of(const Function& function, const std::vector<Value>& values)
{
    ordered_json result;
    result["check"] = function.name;
    result["args"] = json_of(values);
    return result;
}

std::string row(const Function& function, const std::vector<Value>& values, const Answer& answer)
{
    ordered_json result = call_of(function, values);
    result["code"] = answer.code;
    if (!answer.out.empty()) result["out"] = catalogue::utf8_from_bytes(answer.out);
    if (!answer.is_flushed()) result["flushed"] = false;
    if (!answer.err.empty()) result["err"] = catalogue::utf8_from_bytes(answer.err);
    if (!answer.after.empty()) result["after"] = json_of(answer.after);
    return result.dump();
}

// is_left returns whether a number that is only an output was left unwritten; Caller then returns NULL.
bool is_left(const Value& expected, const Value& actual)
{
    const auto* number = std::get_if<long long>(&expected);
    return number != nullptr && *number == std::numeric_limits<int>::min() &&
           std::holds_alternative<std::nullptr_t>(actual);
}

bool are_equal(const std::vector<Value>& expected, const std::vector<Written>& actual)
{
    return std::ranges::equal(expected, actual, [](const Value& value, const Written& written) {
        return value == written.value || is_left(value, written.value);
    });
}

}  // namespace

bool CallComparer::agrees(const Function& function, const std::vector<Value>& values, const Answer& expected)
{
    return agrees_at(at_end_, function, values, expected) && agrees_at(at_begin_, function, values, expected);
}

bool CallComparer::agrees_at(Caller& caller, const Function& function, const std::vector<Value>& values,
                             const Answer& expected)
{
    caller.load(function, values);
    capture_.clear();
    ++calls_;
    const int code = caller.call();
    const calling::PrintedView printed = capture_.look();
    std::vector<Written> written;
    if (!expected.after.empty()) written = caller.written();
    if (code == expected.code && printed.out == expected.out && printed.err == expected.err &&
        (printed.flushed == printed.out.size()) == expected.is_flushed() &&
        are_equal(expected.after, written)) {
        return true;
    }
    Answer actual;
    actual.code = code;
    actual.out = printed.out;
    actual.err = printed.err;
    actual.flushed = printed.flushed;
    for (Written& one : written) actual.after.push_back(std::move(one.value));
    difference_ = "differs: " + std::string(function.name) + "\nrules:   " + row(function, values, expected) +
                  "\nlibrary: " + row(function, values, actual) + "\n";
    return false;
}

std::string shown_call(const Function& function, const std::vector<Value>& values)
{
    return call_of(function, values).dump();
}

}  // namespace ostrel::oracle
