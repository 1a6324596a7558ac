#include "oracle/counts.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "rules/rules.h"

namespace ostrel::oracle {

using rules::Check;
using rules::Condition;
using rules::Counts;
using rules::Step;

namespace {

// The names are in the order of the enumerators.
constexpr std::string_view kSteps[] = {"refuse",   "accept", "print",    "skip",  "write",
                                       "remember", "when",   "for each", "reads", "never returns"};
constexpr std::string_view kConditions[] = {"always",     "null",     "empty",     "shorter",     "longer",
                                            "length",     "outside",  "one of",    "begins with", "ends with",
                                            "below",      "above",    "among",     "between",     "multiple",
                                            "equal",      "contains", "shape",     "grammar",     "in table",
                                            "refused by", "listed",   "last item", "all of",      "any of"};
static_assert(std::size(kSteps) == static_cast<std::size_t>(Step::Kind::kNeverReturns) + 1);
static_assert(std::size(kConditions) == static_cast<std::size_t>(Condition::Kind::kAnyOf) + 1);

class Lister {
 public:
    Lister(const Check& check, const Counts::OfCheck& of, std::vector<StepCount>& rows)
        : check_(check), of_(of), rows_(rows)
    {
        add(check.steps);
    }

 private:
    void add(const std::vector<Step>& steps)
    {
        for (const Step& step : steps) {
            std::string what(kSteps[static_cast<std::size_t>(step.kind)]);
            if (step.kind == Step::Kind::kRefuse)
                what += step.code.is_its ? " its code" : " " + std::to_string(step.code.number.number);
            add("step", step.number, what, of_.steps[step.number]);
            add(step.condition);
            add(step.steps);
            add(step.otherwise);
        }
    }

    void add(const Condition& condition)
    {
        std::string what = condition.is_negated ? "not " : "";
        what += kConditions[static_cast<std::size_t>(condition.kind)];
        if (!condition.words.empty()) what += " " + std::string(condition.words.front());
        if (!condition.check.empty()) what += " " + std::string(condition.check);
        for (const long long number : condition.numbers) what += " " + std::to_string(number);
        if (condition.kind != Condition::Kind::kAlways)
            add("condition", condition.number, what, of_.held[condition.number]);
        for (const Condition& part : condition.parts) add(part);
    }

    void add(std::string_view kind, std::size_t number, const std::string& what, std::uint64_t times)
    {
        std::ostringstream name;
        name << check_.name << ' ' << kind << ' ' << number << ' ' << what;
        rows_.push_back({name.str(), times});
    }

    const Check& check_;
    const Counts::OfCheck& of_;
    std::vector<StepCount>& rows_;
};

}  // namespace

std::vector<StepCount> table(const Counts& counts)
{
    std::vector<StepCount> rows;
    for (const Check& check : rules::checks()) Lister(check, counts.checks[check.number], rows);
    return rows;
}

void write_table(const std::filesystem::path& file, std::vector<StepCount> rows)
{
    std::ranges::stable_sort(rows, {}, &StepCount::times);
    std::ofstream stream(file);
    for (const StepCount& row : rows) stream << row.times << ' ' << row.what << '\n';
    if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
}

void add_table(const std::filesystem::path& file, std::vector<StepCount>& rows)
{
    std::ifstream stream(file);
    std::map<std::string, std::uint64_t> earlier;
    std::uint64_t times = 0;
    for (std::string what; stream >> times && std::getline(stream.ignore(), what);) earlier[what] = times;
    for (StepCount& row : rows) {
        const auto found = earlier.find(row.what);
        if (found == earlier.end())
            throw std::runtime_error(file.string() + " has no count for: " + row.what);
        row.times += found->second;
    }
}

}  // namespace ostrel::oracle
