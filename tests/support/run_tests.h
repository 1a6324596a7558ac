// Runs the tests of a program, for the last line of its main function.
#ifndef OSTREL_TESTS_SUPPORT_RUN_TESTS_H
#define OSTREL_TESTS_SUPPORT_RUN_TESTS_H

namespace ostrel::tests {

// run_tests runs the tests and returns the exit status: 1 if a test failed or none ran; 77, which ctest is configured
// to count as skipped, if a test was skipped. If the environment sets CI, a skipped test is a failure.
int run_tests();

}  // namespace ostrel::tests

#endif
