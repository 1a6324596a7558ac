// Tests calls to the generic checks that never return, which the vectors cannot express.

#include <gtest/gtest.h>
#include <ostrel/parameter_check.h>

#include <array>
#include <cstdio>
#include <memory>
#include <vector>

#include "tests/support/child.h"

namespace ostrel::tests {

namespace {

using std::chrono::milliseconds;

// If a value begins with a digit, these two checks read that digit forever and print nothing.
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
