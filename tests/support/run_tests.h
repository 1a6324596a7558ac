// Runs the tests of a test program and determines its exit status.
#ifndef OSTREL_TESTS_SUPPORT_RUN_TESTS_H
#define OSTREL_TESTS_SUPPORT_RUN_TESTS_H

namespace ostrel::tests {

// run_tests returns the exit status: 1 if a test failed or none ran, and 77, which ctest counts as skipped,
// if a test was skipped. If CI is set in the environment, a skipped test is a failure.
int run_tests();

}  // namespace ostrel::tests

#endif
