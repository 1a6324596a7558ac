#include "tests/support/child.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>

namespace ostrel::tests {

namespace {

using std::chrono::milliseconds;

// Other tests rely on this for calls that end by a signal or never return.
TEST(Child, TellsReturnSignalAndTimeOutApart)
{
    const ChildEnd returned = run_in_child(milliseconds(10000), [] {
        std::fputs("out", stdout);
        std::fputs("err", stderr);
        return 7;
    });
    EXPECT_EQ(7, returned.status);
    EXPECT_EQ(0, returned.signal);
    EXPECT_FALSE(returned.timed_out);
    EXPECT_EQ("out", returned.out);
    EXPECT_EQ("err", returned.err);

    const ChildEnd killed = run_in_child(milliseconds(10000), [] { return std::raise(SIGKILL); });
    EXPECT_EQ(SIGKILL, killed.signal);
    EXPECT_EQ(-1, killed.status);
    EXPECT_FALSE(killed.timed_out);

    const ChildEnd endless = run_in_child(milliseconds(50), [] {
        for (;;) std::fflush(stdout);
        return 0;
    });
    EXPECT_TRUE(endless.timed_out);
    EXPECT_EQ(0, endless.signal);
}

}  // namespace

}  // namespace ostrel::tests
