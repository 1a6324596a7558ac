// Compares the documented effect of NULL for an argument with the outcomes of calls.

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <regex>
#include <set>

#include "oracle/library.h"
#include "rules/null.h"
#include "tests/rules/rows.h"
#include "tests/support/child.h"

namespace ostrel::tests {

using catalogue::Function;
using catalogue::Value;
using rules::Check;

namespace {

class NullTest : public testing::TestWithParam<const Function*> {
 protected:
    const Function& function_ = *GetParam();
    const Check& check_ = *function_.check;
};

std::string outcome_in_words(const Function& function, const std::vector<Value>& values)
{
    int code = 0;
    const ChildEnd end = run_in_child(std::chrono::seconds(5), [&] {
        calling::Caller caller;
        caller.load(function, values);
        code = caller.call();
        std::fprintf(stderr, "\ncode %d", code);
        return 0;
    });
    if (end.signal == SIGABRT) {
        std::smatch asserted;
        std::regex_search(end.err, asserted, std::regex("Assertion `(.*)' failed"));
        return "failed assertion " + asserted.str(1);
    }
    if (end.signal != 0) return "memory fault";
    if (end.timed_out) return "does not return";
    const std::string text = end.err.substr(end.err.rfind("\ncode ") + 6);
    if (!function.check->is_verdict) return "returns " + text;
    return text == "0" ? "accepted" : "refused with " + text;
}

std::set<std::string> outcomes_in(const std::string& text)
{
    const std::regex outcome(
        "failed assertion [^ ]+( \\*\\)0\\))? != [^ )]+( \\*\\)0\\))?(?=\\))|memory fault|passed to the C "
        "library|does not return|accepted|"
        "(returns |refused with )(-?[0-9]+((, | or )-?[0-9]+)*)");
    const std::regex number("-?[0-9]+");
    std::set<std::string> result;
    for (std::sregex_iterator one(text.begin(), text.end(), outcome), end; one != end; ++one) {
        if (!(*one)[3].matched) result.insert(one->str());
        const std::string codes = one->str(4);
        for (std::sregex_iterator code(codes.begin(), codes.end(), number); code != end; ++code)
            result.insert(one->str(3) + code->str());
    }
    return result;
}

// Calls with the same described outcome end in the same way, so the test makes one call for each outcome. The
// evaluation of a description ends at a NULL that is printed, so a few more rows are tried in that case.
TEST_P(NullTest, WhatIsSaidIsWhatHappens)
{
    constexpr std::size_t kMostCalls = 12;
    const Rows& rows = rows_of(function_);
    const std::size_t distance = std::max<std::size_t>(rows.size() / kMostCalls, 1);
    for (std::size_t i = 0; i < check_.arguments.size(); ++i) {
        const std::string said = rules::null_does(check_, i, oracle::library_build());
        const bool is_printed = outcomes_in(said).contains("passed to the C library");
        std::set<std::string> met;
        std::set<std::string> tried;
        for (std::size_t r = 0; r < rows.size(); ++r) {
            std::vector<Value> values = catalogue::completed(function_, rows[r].get().given.values);
            if (std::holds_alternative<long long>(values[i]) && said.empty()) break;
            values[i] = nullptr;
            const auto answer = rules::evaluate(check_, values, oracle::library_build());
            if (answer.outside == rules::Outside::kDriver) continue;
            const std::string kind =
                std::to_string(static_cast<int>(answer.outside)) + " " + std::to_string(answer.code);
            if (!tried.insert(kind).second && (!is_printed || r % distance != 0)) continue;
            const std::string outcome = outcome_in_words(function_, values);
            const bool is_left = answer.outside == rules::Outside::kNull && outcome != "memory fault";
            met.insert(is_left ? "passed to the C library" : outcome);
        }
        EXPECT_EQ(met, outcomes_in(said)) << check_.arguments[i].name << ": " << said;
    }
}

INSTANTIATE_TEST_SUITE_P(Checks, NullTest, testing::ValuesIn(all_functions()),
                         [](const auto& instance) { return std::string(instance.param->name); });

}  // namespace

}  // namespace ostrel::tests
