// What the vectors cannot say of the generic checks: calls that end the process, and calls that never return.

#include <gtest/gtest.h>
#include <ostrel/parameter_check.h>

#include <array>
#include <csignal>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/child.h"

namespace ostrel::tests {

namespace {

using std::chrono::milliseconds;

struct AssertingCheck {
    const char* name;
    const char* condition;
    int (*call)(const char* value_p);
};

constexpr char kCondition[] = "value_p != ((void *)0)";

constexpr std::array<AssertingCheck, 8> kAssertingChecks = {{
    {"Param_check_string_len", "((void *)0) != value_p",
     [](const char* value_p) { return Param_check_string_len(value_p, 0, 9); }},
    {"PARAM_check_port", kCondition, PARAM_check_port},
    {"PARAM_check_hexa_string", kCondition, PARAM_check_hexa_string},
    {"PARAM_check_ui2_value", kCondition, PARAM_check_ui2_value},
    {"PARAM_check_ui4_value", kCondition, PARAM_check_ui4_value},
    {"PARAM_check_bool_value", kCondition, PARAM_check_bool_value},
    {"PARAM_check_bool_value_use_str", kCondition, PARAM_check_bool_value_use_str},
    {"PARAM_check_string_prefix", kCondition,
     [](const char* value_p) { return PARAM_check_string_prefix(value_p, "ab"); }},
}};

TEST(ParameterCheckAssertion, NullEndsTheProcessAndNamesModuleFunctionAndCondition)
{
    for (const AssertingCheck& check : kAssertingChecks) {
        const ChildEnd end = run_in_child(milliseconds(10000), [&] { return check.call(nullptr); });
        EXPECT_EQ(SIGABRT, end.signal) << check.name << testing::PrintToString(end);
        EXPECT_EQ("", end.out) << check.name;
        EXPECT_NE(std::string::npos, end.err.find(check.condition)) << check.name << ": " << end.err;
#if defined(__GLIBC__) && !defined(__UCLIBC__)
        // PROGRAM: parameter_check:LINE: FUNCTION: Assertion `CONDITION' failed.
        const std::string module = ": parameter_check:";
        const std::size_t line = end.err.find(module) + module.size();
        const std::size_t rest = end.err.find_first_not_of("0123456789", line);
        ASSERT_LT(line, rest) << check.name << ": " << end.err;
        EXPECT_EQ(": " + std::string(check.name) + ": Assertion `" + check.condition + "' failed.\n",
                  end.err.substr(rest));
#endif
    }
}

// The line of the report is that of the check, so no two checks name the same one.
TEST(ParameterCheckAssertion, EachCheckReportsALineOfItsOwn)
{
    std::vector<std::string> reports;
    for (const AssertingCheck& check : kAssertingChecks) {
        std::string report = run_in_child(milliseconds(10000), [&] { return check.call(nullptr); }).err;
        // The function's name would tell two reports apart in any case.
        if (const auto place = report.find(check.name); place != std::string::npos) report.resize(place);
        for (const std::string& earlier : reports) EXPECT_NE(earlier, report);
        reports.push_back(std::move(report));
    }
}

// The digit scan of these two looks at the first character for ever, and prints nothing meanwhile.
TEST(ParameterCheckDigitScan, NeverReturnsForAValueThatBeginsWithADigit)
{
    constexpr milliseconds kLimit(300);
    for (const auto& check : {PARAM_check_ui2_value, PARAM_check_ui4_value}) {
        const std::array<const char*, 6> values = {"0", "1", "9", "65535", "65536", "1x"};
        std::vector<std::unique_ptr<Child>> children;
        children.reserve(values.size());
        for (const char* value : values) {
            children.push_back(std::make_unique<Child>([check, value] {
                std::puts("called");
                std::fflush(stdout);
                return check(value);
            }));
        }
        for (std::size_t i = 0; i < values.size(); ++i) {
            const ChildEnd end = children[i]->wait(kLimit);
            EXPECT_TRUE(end.timed_out) << values[i] << ": " << testing::PrintToString(end);
            EXPECT_EQ("called\n", end.out) << values[i];
            EXPECT_EQ("", end.err) << values[i];
        }
    }
}

}  // namespace

}  // namespace ostrel::tests
