#include "tests/support/run_tests.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace ostrel::tests {

namespace {

constexpr int kFailed = 1;
constexpr int kSkipped = 77;

// Counts remember how many tests there were. They are counted by a listener, which a program that only lists
// its tests does not call.
class Counts : public testing::EmptyTestEventListener {
 public:
    [[nodiscard]] int status() const { return status_; }

    void OnTestProgramEnd(const testing::UnitTest& all) override
    {
        const char* const ci = std::getenv("CI");  // NOLINT(concurrency-mt-unsafe)
        const bool may_skip = ci == nullptr || std::string_view(ci).empty();
        status_ = 0;
        if (all.test_to_run_count() == 0) {
            std::fputs("No test ran.\n", stderr);
            status_ = kFailed;
        } else if (all.skipped_test_count() > 0) {
            if (!may_skip) std::fputs("Tests were skipped, which is a failure where CI is set.\n", stderr);
            status_ = may_skip ? kSkipped : kFailed;
        }
    }

 private:
    int status_ = 0;
};

}  // namespace

int run_tests()
{
    auto* const counts = new Counts;  // the listeners own it
    testing::UnitTest::GetInstance()->listeners().Append(counts);
    const int failed = RUN_ALL_TESTS();
    return failed != 0 ? failed : counts->status();
}

}  // namespace ostrel::tests
