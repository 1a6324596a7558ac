#include "tests/rules/experiment.h"

#include <algorithm>
#include <limits>

#include "oracle/driver.h"
#include "oracle/harvest.h"
#include "oracle/input.h"
#include "oracle/library.h"
#include "oracle/mutator.h"
#include "tests/rules/candidates.h"
#include "tests/rules/rows.h"

namespace ostrel::tests {

using calling::Capture;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;
using rules::Check;
using rules::Constraints;
using rules::NullOutcome;
using rules::Outside;
using vectors::shown;

namespace {

constexpr std::size_t kMostRows = 3;  // rows into which candidates are inserted

const rules::Build& build() { return oracle::builds_with_channels().front(); }

bool is_in_range(Kind kind, long long number)
{
    if (kind == Kind::kUnsigned) return number >= 0 && number <= std::numeric_limits<unsigned>::max();
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

}  // namespace

Experiment::Experiment(const Function& function, const Check& check) : function_(function), check_(check)
{
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        if (!rules::has_constraints(check, i)) continue;
        const Constraints& said =
            constraints_.emplace(i, rules::constraints_of(check, i, oracle::library_build())).first->second;
        reads_number_ = reads_number_ || said.form.reads_number;
    }
    for (const Row& row : all_rows()) {
        if (row.given.function == &function)
            rows_.push_back(catalogue::completed(function, row.given.values));
    }
}

std::optional<bool> Experiment::call(const Values& values, Capture& capture)
{
    const rules::Answer answer = rules::evaluate(check_, values, build());
    if (answer.outside != Outside::kNo || (answer.beyond_int && reads_number_)) return std::nullopt;
    caller_.load(function_, values);
    const oracle::Driver driver(build().channels.value_or(std::vector<int>()));
    const bool is_accepted = caller_.call() == 0;
    capture.clear();
    ++(is_accepted ? accepted : refused);
    return is_accepted;
}

void Experiment::tell(std::string_view what, const Values& values, std::size_t argument)
{
    if (!difference.empty()) return;
    difference = std::string(function_.name) + " " + std::string(check_.arguments[argument].name) + ": ";
    difference += what;
    for (const Value& value : values) {
        if (const auto* text = std::get_if<std::string>(&value)) difference += " " + shown(*text);
        if (const auto* number = std::get_if<long long>(&value)) difference += " " + std::to_string(*number);
    }
}

void Experiment::compare(const Values& values, std::size_t argument, bool is_accepted)
{
    const Constraints& constraints = constraints_.at(argument);
    const bool must_obey = is_accepted && constraints.is_necessary;
    const bool must_not = !is_accepted && constraints.is_sufficient;
    if (!must_obey && !must_not) return;
    const std::string fault = obedience_.fault_of(constraints, values, argument);
    if (must_obey && !fault.empty()) tell("accepted, but does not obey " + fault, values, argument);
    if (must_not && fault.empty()) tell("obeys, but is refused", values, argument);
}

void Experiment::change(std::size_t times, Capture& capture)
{
    std::vector<std::string> inputs;
    for (const Values& values : rows_) {
        if (const auto fields = oracle::encode_arguments(function_, values)) inputs.push_back(" " + *fields);
    }
    if (inputs.empty()) inputs.emplace_back(" ");
    oracle::Mutator mutator(std::move(inputs), 2);
    Values values;
    for (std::size_t i = 0; i < times && difference.empty(); ++i) {
        oracle::decode_arguments(function_, std::string_view(mutator.next()).substr(1), values);
        if (!call(values, capture).value_or(false)) continue;
        for (std::size_t argument = 0; argument < values.size(); ++argument) {
            if (constraints(argument) != nullptr) compare(values, argument, true);
        }
    }
}

Experiment::Values Experiment::candidates_for(std::size_t argument) const
{
    const Constraints& constraints = constraints_.at(argument);
    const Kind kind = function_.arguments[argument].kind;
    Values result;
    if (kind == Kind::kInteger || kind == Kind::kUnsigned) {
        for (const long long number : numbers(constraints.form)) {
            if (is_in_range(kind, number)) result.emplace_back(number);
        }
        return result;
    }
    std::set<std::string> known = oracle::harvest(check_, oracle::library_build());
    for (const Values& row : rows_) {
        const auto* text = std::get_if<std::string>(&row[argument]);
        if (text != nullptr && text->size() < 10000) known.insert(*text);
    }
    for (const rules::Form& form : constraints.form.recommended) known.merge(candidates(form, {}));
    for (const std::string& text : candidates(constraints.form, known)) result.emplace_back(text);
    return result;
}

void Experiment::vary(std::size_t argument, Capture& capture)
{
    const Constraints& constraints = constraints_.at(argument);
    const Values tried = candidates_for(argument);
    std::size_t rows = 0;
    for (const Values& row : rows_) {
        if (!call(row, capture).value_or(false)) continue;
        if (std::holds_alternative<std::nullptr_t>(row[argument])) continue;
        if (++rows > kMostRows) return;
        for (const Value& candidate : tried) {
            Values values = row;
            values[argument] = candidate;
            const std::optional<bool> is_accepted = call(values, capture);
            if (!is_accepted) continue;
            compare(values, argument, *is_accepted);
            const auto* text = std::get_if<std::string>(&candidate);
            if (*is_accepted || text == nullptr || constraints.form.recommended.empty()) continue;
            const bool is_offered = obedience_.fault(constraints.form.recommended.front(), *text).empty();
            if (is_offered && constraints.is_sufficient)
                tell("is recommended, but refused", values, argument);
        }
    }
}

std::set<NullOutcome> Experiment::pass_null(std::size_t argument, Capture& capture)
{
    std::set<NullOutcome> result;
    for (Values values : rows_) {
        values[argument] = nullptr;
        if (std::ranges::count_if(values, [](const Value& value) {
                return std::holds_alternative<std::nullptr_t>(value);
            }) > 1) {
            continue;
        }
        const rules::Answer answer = rules::evaluate(check_, values, build());
        if (answer.outside == Outside::kAssertion) result.insert(NullOutcome::kAssertion);
        if (answer.outside == Outside::kNull) result.insert(NullOutcome::kFault);
        if (answer.outside != Outside::kNo) continue;
        const std::optional<bool> is_accepted = call(values, capture);
        if (is_accepted) result.insert(*is_accepted ? NullOutcome::kAccepted : NullOutcome::kRefused);
    }
    return result;
}

}  // namespace ostrel::tests
