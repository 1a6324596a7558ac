// run_tests: what the main of every test program ends with.
#ifndef OSTREL_TESTS_SUPPORT_RUN_TESTS_H
#define OSTREL_TESTS_SUPPORT_RUN_TESTS_H

namespace ostrel::tests {

// run_tests runs them and returns the exit status: 1 if a test failed or there was none to run. 77, which ctest
// is told to count as skipped, where one was skipped; where the environment has CI set, that is a failure.
int run_tests();

}  // namespace ostrel::tests

#endif
