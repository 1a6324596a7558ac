// Agreement test: what the descriptions say of every row of vectors/*.ndjson, and of many calls that are made from
// them and from the descriptions themselves, compared with what the library does.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <map>
#include <set>
#include <string>

#include "fuzz/input.h"
#include "fuzz/mutator.h"
#include "rules/evaluate.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "tests/rules/harvest.h"
#include "tests/support/vectors.h"

namespace ostrel::tests {

using catalogue::Caller;
using catalogue::Capture;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;
using rules::Answer;
using rules::Build;
using rules::Check;

namespace {

constexpr long long kUnwritten = std::numeric_limits<int>::min();

std::string chosen(const char* variable, const char* built)
{
    const char* other = std::getenv(variable);
    return other == nullptr ? built : other;
}

// library_build is the build of the library that is loaded: a variant says what it chooses in the environment.
const Build& library_build()
{
    static const std::string model = chosen("OSTREL_TEST_MODEL", OSTREL_MODEL);
    static const std::string account_realm = chosen("OSTREL_TEST_ACCOUNT_REALM", OSTREL_ACCOUNT_REALM);
    static const std::string setup_realm = chosen("OSTREL_TEST_SETUP_REALM", OSTREL_SETUP_REALM);
    static const Build build = {model, account_realm, setup_realm,
                                sizeof(long) == 8 ? Build::Atoi::kLong64 : Build::Atoi::kLong32,
                                std::nullopt};
    return build;
}

// complete adds what a row leaves out: arguments that are only written.
std::vector<Value> complete(const Function& function, const std::vector<Value>& given)
{
    if (given.size() == function.arguments.size()) return given;
    std::vector<Value> result;
    auto next = given.begin();
    for (const auto& argument : function.arguments) {
        if (!argument.output_only) {
            result.push_back(*next++);
        } else if (argument.kind == Kind::kIntegerOut) {
            result.emplace_back(kUnwritten);
        } else {
            result.emplace_back(std::string());
        }
    }
    return result;
}

Outcome outcome_of(const Answer& answer)
{
    Outcome outcome{answer.code, answer.out, answer.err, answer.is_flushed(), answer.after};
    for (Value& value : outcome.after) {
        if (value == Value(kUnwritten)) value = nullptr;
    }
    return outcome;
}

std::string shown_call(const Function& function, const std::vector<Value>& values)
{
    std::string result(function.name);
    for (const Value& value : values) {
        result += " ";
        if (const auto* text = std::get_if<std::string>(&value)) result += shown(*text);
        if (const auto* number = std::get_if<long long>(&value)) result += std::to_string(*number);
        if (std::holds_alternative<std::nullptr_t>(value)) result += "NULL";
        if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
            for (const std::string& text : *texts) result += shown(text) + " ";
        }
    }
    return result;
}

// reason_fault says what is wrong with the reason of a refusal; nothing where it can be told.
std::string reason_fault(const Answer& answer)
{
    if (!answer.is_refusal) return "";
    const std::string sentence = rules::sentence(answer.reason);
    if (sentence.empty()) return "no sentence for \"" + std::string(answer.reason.id) + "\"";
    for (const char* place : {"{found", "{allowed", "{byte", "{position", "{item", "{read_as"}) {
        if (sentence.find(place) != std::string::npos) return sentence;
    }
    return "";
}

TEST(AgreementTest, VectorsAndDescriptions)
{
    std::size_t count = 0;
    for (const Row& row : read_cases()) {
        const Function& function = *row.given.function;
        const Check* check = rules::find(function.name);
        if (check == nullptr) continue;
        SCOPED_TRACE(row.text.substr(0, 300));
        Build build = library_build();
        if (row.overflows) build.atoi = Build::Atoi::kLong64;
        const Answer answer = rules::evaluate(*check, complete(function, row.given.values), build);
        EXPECT_EQ(answer.outside, rules::Outside::kNo);
        Caller caller;
        caller.load(function, row.given.values);
        EXPECT_EQ(expected_outcome(row, caller.written()), outcome_of(answer));
        EXPECT_EQ(reason_fault(answer), "");
        if (check->is_verdict) {
            EXPECT_EQ(answer.is_refusal, answer.code != 0);
        }
        ++count;
    }
    EXPECT_GT(count, 0);
}

// Trials makes the calls of one function: the rows, the rows with other texts in place of one, and changed ones.
class Trials {
 public:
    Trials(const Function& function, const Check& check) : function_(function), check_(check)
    {
        const auto texts = harvest(check, library_build());
        for (const Row& row : rows()) {
            if (row.given.function != &function) continue;
            const std::vector<Value> values = complete(function, row.given.values);
            add(values);
            if (inputs_.size() < 20) add_others(values, texts);
        }
        if (inputs_.empty()) inputs_.emplace_back(" ");
    }

    void run(std::size_t changed, Capture& capture)
    {
        fuzz::Mutator mutator(inputs_, 1);
        for (const std::string& input : inputs_) {
            if (!agrees(input, capture)) return;
        }
        for (std::size_t i = 0; i < changed; ++i) {
            if (!agrees(mutator.next(), capture)) return;
        }
    }

    std::size_t calls = 0;
    std::size_t refusals = 0;
    std::string difference;
    rules::Counts counts;

 private:
    static const std::vector<Row>& rows()
    {
        static const std::vector<Row> all = read_cases();
        return all;
    }

    void add(const std::vector<Value>& values)
    {
        if (const auto fields = fuzz::encode_arguments(function_, values)) inputs_.push_back(" " + *fields);
    }

    void add_others(const std::vector<Value>& values, const std::set<std::string>& texts)
    {
        for (std::size_t i = 0; i < values.size(); ++i) {
            for (const std::string& text : texts) {
                std::vector<Value> others = values;
                if (std::holds_alternative<std::string>(others[i])) others[i] = text;
                if (auto* several = std::get_if<std::vector<std::string>>(&others[i])) {
                    if (text.size() >= function_.arguments[i].capacity) continue;
                    several->at(inputs_.size() % several->size()) = text;
                }
                add(others);
            }
        }
    }

    bool agrees(std::string_view input, Capture& capture)
    {
        fuzz::decode_arguments(function_, input.substr(1), values_);
        const Answer answer = rules::evaluate(check_, values_, library_build(), &counts);
        if (answer.outside != rules::Outside::kNo) return true;
        caller_.load(function_, values_);
        const Outcome actual = actual_outcome(caller_, capture);
        ++calls;
        refusals += answer.is_refusal ? 1 : 0;
        const std::string fault = reason_fault(answer);
        if (actual == outcome_of(answer) && fault.empty()) return true;
        difference = shown_call(function_, values_) + "\nlibrary" + testing::PrintToString(actual) +
                     "\ndescription" + testing::PrintToString(outcome_of(answer)) + "\n" + fault;
        return false;
    }

    const Function& function_;
    const Check& check_;
    std::vector<std::string> inputs_;
    std::vector<Value> values_;
    Caller caller_;
};

TEST(AgreementTest, LibraryAndDescriptions)
{
    const char* given = std::getenv("OSTREL_TEST_RUNS");
    const std::size_t runs = given == nullptr ? 2000 : std::strtoul(given, nullptr, 10);
    for (const Check& check : rules::checks()) {
        const Function* function = catalogue::find(check.name);
        ASSERT_NE(function, nullptr) << check.name;
        Trials trials(*function, check);
        {
            Capture capture;
            trials.run(runs, capture);
        }
        EXPECT_EQ(trials.difference, "");
        const rules::Counts::OfCheck& of = trials.counts.checks[check.number];
        const auto never = [](const std::vector<std::uint64_t>& counts) {
            return std::ranges::count(counts, 0U);
        };
        std::printf("%-40s %8zu calls, %8zu refused; never: %td of %zu steps, %td of %zu conditions\n",
                    std::string(check.name).c_str(), trials.calls, trials.refusals, never(of.steps),
                    of.steps.size(), never(of.held), of.held.size());
    }
}

TEST(AgreementTest, ArgumentsAreThoseOfTheHeaders)
{
    for (const Check& check : rules::checks()) {
        const Function* function = catalogue::find(check.name);
        ASSERT_NE(function, nullptr) << check.name;
        ASSERT_EQ(check.arguments.size(), function->arguments.size()) << check.name;
        for (std::size_t i = 0; i < check.arguments.size(); ++i) {
            EXPECT_EQ(check.arguments[i].name, function->arguments[i].name) << check.name;
            EXPECT_EQ(static_cast<int>(check.arguments[i].kind),
                      static_cast<int>(function->arguments[i].kind))
                << check.name;
        }
    }
}

// What is not described yet is listed.
TEST(AgreementTest, DescribedFunctions)
{
    std::map<std::string, std::string> missing;
    for (const Function& function : catalogue::functions()) {
        if (rules::find(function.name) == nullptr)
            missing[std::string(function.family)] += " " + std::string(function.name);
    }
    for (const auto& [family, names] : missing)
        std::printf("not described, %s:%s\n", family.c_str(), names.c_str());
}

}  // namespace

}  // namespace ostrel::tests
