#include "tests/support/run_tests.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace ostrel::tests {

namespace {

constexpr int kFailed = 1;
constexpr int kSkipped = 77;

// Counts derives the exit status from the tests that ran and that were skipped. It is a listener because none
// is called if a program only lists its tests, which must not be reported as "No test ran."
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

// Swap exchanges standard output for another stream when a failure is reported.
class Swap : public testing::EmptyTestEventListener {
 public:
    explicit Swap(std::FILE*& other) : other_(other) {}

    void OnTestPartResult(const testing::TestPartResult& /*result*/) override { std::swap(stdout, other_); }

 private:
    std::FILE*& other_;
};

// print_failures_where_they_are_seen prints failures to the original standard output even during a capture.
// Otherwise, the capture would hide them and treat them as output of the check.
void print_failures_where_they_are_seen(testing::TestEventListeners& listeners)
{
    static std::FILE* other = stdout;
    testing::TestEventListener* const printer = listeners.Release(listeners.default_result_printer());
    if (printer == nullptr) return;
    // Listeners are notified of a failure in this order; the last one undoes the swap of the first.
    listeners.Append(new Swap(other));
    listeners.Append(printer);
    listeners.Append(new Swap(other));
}

}  // namespace

int run_tests()
{
    auto* const counts = new Counts;  // the listeners own it
    testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
    print_failures_where_they_are_seen(listeners);
    listeners.Append(counts);
    const int failed = RUN_ALL_TESTS();
    return failed != 0 ? failed : counts->status();
}

}  // namespace ostrel::tests
