// run_tests in a process of its own: what a program with such tests ends with, by whether CI is set.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "tests/support/child.h"

namespace ostrel::tests {

namespace {

TEST(Sample, DISABLED_Passes) {}

TEST(Sample, DISABLED_Fails) { FAIL(); }

TEST(Sample, DISABLED_IsSkipped) { GTEST_SKIP(); }

// status_of runs those of the samples whose names match.
int status_of(const std::string& samples, const char* ci)
{
    const ChildEnd end = run_in_child(std::chrono::seconds(60), [&] {
        const std::string filter = "--gtest_filter=" + samples;
        setenv("CI", ci, 1);
        execl("/proc/self/exe", "support_test", "--gtest_also_run_disabled_tests", filter.c_str(), nullptr);
        return 126;
    });
    return end.status;
}

TEST(RunTests, EndWithTheWorstThatHappened)
{
    for (const char* ci : {"", "true"}) {
        EXPECT_EQ(0, status_of("*_Passes", ci));
        EXPECT_EQ(1, status_of("*_Fails", ci));
        EXPECT_EQ(1, status_of("*_Fails:*_IsSkipped", ci));
    }
}

TEST(RunTests, TellOfASkippedTestAndFailWhereCiIsSet)
{
    EXPECT_EQ(77, status_of("*_IsSkipped", ""));
    EXPECT_EQ(77, status_of("*_Passes:*_IsSkipped", ""));
    EXPECT_EQ(1, status_of("*_IsSkipped", "true"));
    EXPECT_EQ(1, status_of("*_Passes:*_IsSkipped", "1"));
}

TEST(RunTests, FailWhereThereIsNone)
{
    EXPECT_EQ(1, status_of("*_Nonesuch", ""));
    EXPECT_EQ(1, status_of("*_Nonesuch", "true"));
}

}  // namespace

}  // namespace ostrel::tests
