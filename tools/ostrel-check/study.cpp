#include "study.h"

#include <algorithm>
#include <set>

#include "catalogue/caller.h"
#include "catalogue/capture.h"

namespace ostrel::tool {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Row;
using catalogue::Value;

namespace {

constexpr std::size_t kLongestExample = 72;

// shown_size is how long a value is on a line; one that cannot be shown as it is counts as too long.
std::size_t shown_size(const Value& value)
{
    const auto size_of = [](const std::string& text) {
        const bool is_plain = std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
        return is_plain ? text.size() : kLongestExample + 1;
    };
    if (const auto* text = std::get_if<std::string>(&value)) return size_of(*text);
    std::size_t sum = 0;
    if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
        for (const std::string& text : *texts) sum += size_of(text);
    }
    return sum;
}

bool is_fit_to_show(const Function& function, const Row& row)
{
    std::size_t sum = 0;
    for (const Value& value : row.values) {
        if (std::holds_alternative<std::nullptr_t>(value)) return false;
        sum += shown_size(value);
    }
    return sum <= kLongestExample && catalogue::may_be_called(function, row.values);
}

bool is_empty(const Row& row)
{
    return std::ranges::any_of(row.values, [](const Value& value) {
        const auto* text = std::get_if<std::string>(&value);
        return text != nullptr && text->empty();
    });
}

Example call(const Function& function, const Row& row)
{
    catalogue::Capture capture;
    catalogue::Caller caller;
    caller.load(function, row.values);
    Example example{row.values, caller.call(), "", ""};
    catalogue::Printed printed = capture.take();
    example.out = std::move(printed.out);
    example.err = std::move(printed.err);
    return example;
}

// judged gives the values that a row's conditions speak of: what stands in a buffer after the call.
std::vector<Value> judged(const Function& function, const Row& row)
{
    std::vector<Value> values = row.values;
    if (function.arguments[0].kind == Kind::kBuffer && !row.after.empty()) values[0] = row.after[0];
    return values;
}

}  // namespace

std::vector<Example> examples_of(const Function& function, std::size_t accepted, std::size_t refused)
{
    std::vector<Row> rows;
    for (Row& row : catalogue::rows_of(function)) {
        if (is_fit_to_show(function, row)) rows.push_back(std::move(row));
    }
    // An empty value shows less than another.
    std::ranges::stable_sort(rows, {}, is_empty);
    std::vector<Example> result;
    const auto take = [&](bool of_accepted, std::size_t count) {
        std::set<const catalogue::Code*> met;
        std::vector<const Row*> taken;
        for (const bool is_new_condition : {true, false}) {
            for (const Row& row : rows) {
                const bool is_accepted = row.code == 0 || !function.is_verdict;
                if (taken.size() == count || is_accepted != of_accepted) continue;
                if (std::ranges::find(taken, &row) != taken.end()) continue;
                const auto* condition =
                    catalogue::condition_of(function, judged(function, row), row.code).condition;
                if (is_new_condition && !of_accepted && !met.insert(condition).second) continue;
                taken.push_back(&row);
            }
        }
        for (const Row* row : taken) result.push_back(call(function, *row));
    };
    take(true, accepted);
    take(false, refused);
    return result;
}

Study study(const Function& function)
{
    const std::vector<Row> rows = catalogue::rows_of(function);
    Study result{
        &function, {}, {}, {}, catalogue::exposures_of(function, rows), catalogue::oddities_of(function)};
    for (std::size_t i = 0; i < function.arguments.size(); ++i) {
        result.null.push_back(null_outcome(function, i, rows));
    }
    std::vector<Row> accepted;
    std::vector<std::vector<Row>> refused(function.codes.size());
    for (const Row& row : rows) {
        if (row.code == 0 || !function.is_verdict) {
            accepted.push_back(row);
            continue;
        }
        const auto* condition = catalogue::condition_of(function, judged(function, row), row.code).condition;
        for (std::size_t i = 0; i < function.codes.size(); ++i) {
            if (condition == &function.codes[i]) refused[i].push_back(row);
        }
    }
    result.accepted_lines = catalogue::lines_of(function, accepted);
    for (std::size_t i = 0; i < function.codes.size(); ++i) {
        result.codes.push_back({&function.codes[i], catalogue::lines_of(function, refused[i])});
    }
    return result;
}

}  // namespace ostrel::tool
