// Runs run_tests in a separate process and checks the exit status, with and without CI set.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "calling/capture.h"
#include "tests/support/child.h"

namespace ostrel::tests {

using calling::Capture;

namespace {

TEST(Sample, DISABLED_Passes) {}

TEST(Sample, DISABLED_Fails) { FAIL(); }

TEST(Sample, DISABLED_IsSkipped) { GTEST_SKIP(); }

TEST(Sample, DISABLED_FailsInACapture)
{
    Capture capture;
    std::fputs("before ", stdout);
    EXPECT_EQ(1, 2) << "what is wrong";
    std::fputs("after", stdout);
    const std::string captured = capture.take().out;
    EXPECT_EQ("before after", captured) << "the capture holds more";
}

ChildEnd run_samples(const std::string& samples, const char* ci)
{
    return run_in_child(std::chrono::seconds(60), [&] {
        const std::string filter = "--gtest_filter=" + samples;
        setenv("CI", ci, 1);
        execl("/proc/self/exe", "support_test", "--gtest_also_run_disabled_tests", filter.c_str(), nullptr);
        return 126;
    });
}

int status_of(const std::string& samples, const char* ci) { return run_samples(samples, ci).status; }

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

TEST(RunTests, TellAFailureWhileACaptureLives)
{
    const ChildEnd end = run_samples("*_FailsInACapture", "");
    EXPECT_EQ(1, end.status);
    EXPECT_NE(std::string::npos, end.out.find("what is wrong")) << end.out;
    EXPECT_EQ(std::string::npos, end.out.find("the capture holds more")) << end.out;
    EXPECT_NE(std::string::npos, end.out.find("1 FAILED TEST")) << end.out;
}

TEST(RunTests, FailWhereThereIsNone)
{
    EXPECT_EQ(1, status_of("*_Nonesuch", ""));
    EXPECT_EQ(1, status_of("*_Nonesuch", "true"));
}

}  // namespace

}  // namespace ostrel::tests
