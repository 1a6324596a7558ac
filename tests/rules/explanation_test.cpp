// Explanation test: what is said of each check, compared with what the vectors and the library show.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "rules/explain.h"
#include "rules/walk.h"
#include "tests/rules/trials.h"
#include "tests/support/child.h"

namespace ostrel::tests {

using catalogue::Function;
using catalogue::Value;
using rules::Check;
using rules::Said;
using rules::SaidLine;

namespace {

const std::vector<Row>& rows_of(const Function& function)
{
    static const auto all = [] {
        std::map<const Function*, std::vector<Row>> result;
        for (Row& row : read_cases()) {
            if (!row.overflows) result[row.given.function].push_back(std::move(row));
        }
        return result;
    }();
    return all.at(&function);
}

void add_lines(const std::vector<Said>& steps, std::vector<SaidLine>& lines)
{
    for (const Said& step : steps) {
        lines.insert(lines.end(), step.lines.begin(), step.lines.end());
        for (const auto* inner : {&step.uses, &step.steps, &step.otherwise}) add_lines(*inner, lines);
    }
}

// Pattern is a line as it is explained, taken apart at what it holds.
class Pattern {
 public:
    explicit Pattern(const SaidLine& line) : is_error_(line.stream == rules::Line::Stream::kErr)
    {
        const std::regex held("<[^>]*>");
        const std::string text = std::regex_replace(line.text, std::regex("\\\\n"), "\n");
        parts_ = {std::sregex_token_iterator(text.begin(), text.end(), held, -1), {}};
        if (text.ends_with('>')) parts_.emplace_back();
    }

    // ends gives where a text may go on after the line that begins there.
    [[nodiscard]] std::set<std::size_t> ends(const std::string& text, std::size_t begin) const
    {
        std::set<std::size_t> places = {begin};
        for (std::size_t i = 0; i < parts_.size() && !places.empty(); ++i) {
            std::set<std::size_t> next;
            const std::size_t last = i == 0 ? begin : text.size();
            for (std::size_t place = *places.begin(); place <= last; ++place) {
                if (text.compare(place, parts_[i].size(), parts_[i]) == 0)
                    next.insert(place + parts_[i].size());
            }
            places = next;
        }
        return places;
    }

    [[nodiscard]] const std::string& printed_in(const Row& row) const
    {
        return is_error_ ? row.promised.err : row.promised.out;
    }

 private:
    std::vector<std::string> parts_;
    bool is_error_;
};

// is_made_of tells that a text is nothing but lines of these patterns, one after the other.
bool is_made_of(const std::string& text, const std::vector<Pattern>& patterns)
{
    std::set<std::size_t> places = {0};
    std::set<std::size_t> known;
    while (!places.empty()) {
        const std::size_t place = *places.begin();
        places.erase(places.begin());
        if (place == text.size()) return true;
        if (!known.insert(place).second) continue;
        for (const Pattern& pattern : patterns) places.merge(pattern.ends(text, place));
    }
    return false;
}

bool stands_in(const Pattern& pattern, const Row& row)
{
    const std::string& text = pattern.printed_in(row);
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (!pattern.ends(text, place).empty()) return true;
    }
    return false;
}

class Explained : public testing::TestWithParam<const Function*> {
 protected:
    const Function& function_ = *GetParam();
    const Check& check_ = *function_.check;
};

// A line that no row prints is one that cannot be printed; one that is not explained is missed.
TEST_P(Explained, LinesAreThoseThatArePrinted)
{
    constexpr std::size_t kLongest = 2000;  // what a longer text is made of would take too long to find out
    std::vector<SaidLine> lines;
    add_lines(rules::explain(check_, library_build()).steps, lines);
    std::vector<Pattern> patterns(lines.begin(), lines.end());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_TRUE(std::ranges::any_of(rows_of(function_), [&](const Row& row) {
            return stands_in(patterns[i], row);
        })) << lines[i].text;
    }
    for (const Row& row : rows_of(function_)) {
        for (const std::string& text : {row.promised.out, row.promised.err}) {
            if (text.size() > kLongest) continue;
            EXPECT_TRUE(is_made_of(text, patterns)) << text;
        }
    }
    EXPECT_EQ(!lines.empty(), rules::prints(check_));
}

TEST_P(Explained, CodesAreThoseThatVectorsReach)
{
    if (!check_.is_verdict) return;
    std::set<int> reached = {0};
    for (const Row& row : rows_of(function_)) reached.insert(row.promised.code);
    std::vector<int> codes = rules::explain(check_, library_build()).codes;
    codes.push_back(0);
    EXPECT_EQ(reached, std::set<int>(codes.begin(), codes.end()));
}

// outcome_in_words calls the function in a process of its own.
std::string outcome_in_words(const Function& function, const std::vector<Value>& values)
{
    int code = 0;
    const ChildEnd end = run_in_child(std::chrono::seconds(5), [&] {
        catalogue::Caller caller;
        caller.load(function, values);
        code = caller.call();
        std::fprintf(stderr, "\ncode %d", code);
        return 0;
    });
    if (end.signal == SIGABRT) return "a failed assertion";
    if (end.signal != 0) return "a memory fault";
    if (end.timed_out) return "does not return";
    const std::string text = end.err.substr(end.err.rfind("\ncode ") + 6);
    if (!function.check->is_verdict) return "answers " + text;
    return text == "0" ? "accepted" : "refused with " + text;
}

std::set<std::string> outcomes_in(const std::string& text)
{
    const std::regex outcome(
        "a failed assertion|a memory fault|left to the C library|does not return|accepted|"
        "(answers |refused with )(-?[0-9]+((, | or )-?[0-9]+)*)");
    const std::regex number("-?[0-9]+");
    std::set<std::string> result;
    for (std::sregex_iterator one(text.begin(), text.end(), outcome), end; one != end; ++one) {
        if (!(*one)[1].matched) result.insert(one->str());
        const std::string codes = one->str(2);
        for (std::sregex_iterator code(codes.begin(), codes.end(), number); code != end; ++code)
            result.insert(one->str(1) + code->str());
    }
    return result;
}
};
}

// Calls that the description puts in the same place come to the same end, so that one of each is made; but after a NULL
// that was printed the description says no more.
TEST_P(Explained, WhatNullDoesIsWhatHappens)
{
    for (std::size_t i = 0; i < check_.arguments.size(); ++i) {
        const std::string said = rules::null_does(check_, i, library_build());
        const bool is_printed = outcomes_in(said).contains("left to the C library");
        std::set<std::string> met;
        std::set<std::string> tried;
        for (const Row& row : rows_of(function_)) {
            std::vector<Value> values = catalogue::completed(function_, row.given.values);
            if (std::holds_alternative<long long>(values[i]) && said.empty()) break;
            values[i] = nullptr;
            const auto answer = rules::evaluate(check_, values, library_build());
            if (answer.outside == rules::Outside::kDriver) continue;
            const std::string kind =
                std::to_string(static_cast<int>(answer.outside)) + " " + std::to_string(answer.code);
            if (!tried.insert(kind).second && !is_printed) continue;
            const std::string outcome = outcome_in_words(function_, values);
            const bool is_left = answer.outside == rules::Outside::kNull && outcome != "a memory fault";
            met.insert(is_left ? "left to the C library" : outcome);
        }
        EXPECT_EQ(met, outcomes_in(said)) << check_.arguments[i].name << ": " << said;
    }
}

TEST_P(Explained, EachArgumentIsDescribed)
{
    const rules::Explanation explanation = rules::explain(check_, library_build());
    EXPECT_FALSE(explanation.accepted.empty());
    for (std::size_t i = 0; i < check_.arguments.size(); ++i) {
        EXPECT_FALSE(explanation.arguments[i].what.empty());
        std::size_t output = 0;
        for (std::size_t before = 0; before < i; ++before)
            output += rules::is_written(check_.arguments[before]);
        const bool changes = std::ranges::any_of(rows_of(function_), [&](const Row& row) {
            const auto values = catalogue::completed(function_, row.given.values);
            return rules::is_written(check_.arguments[i]) && output < row.promised.after.size() &&
                   row.promised.after[output] != values[i];
        });
        EXPECT_EQ(changes, !explanation.arguments[i].written.empty()) << check_.arguments[i].name;
    }
}

std::vector<const Function*> functions()
{
    std::vector<const Function*> all;
    for (const Function& function : catalogue::functions()) all.push_back(&function);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Checks, Explained, testing::ValuesIn(functions()),
                         [](const auto& instance) { return std::string(instance.param->name); });

}  // namespace

}  // namespace ostrel::tests
