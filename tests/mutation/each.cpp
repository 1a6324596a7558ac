// Runs the tests with each of the changes compiled into the program, and reads the rows only once. Each input
// line is the number of a change; the program prints that number, then 1 if a test failed and 0 otherwise.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <vector>

#include "rules/rules.h"
#include "tests/rules/rows.h"

extern int ostrel_mutant_in_force;  // defined in the source that schemata.py generates

namespace {

constexpr rlim_t kMostSeconds = 4;  // the tests take half a second

// The rows refer to the descriptions by address, so the changed descriptions overwrite the originals.
void remake_checks()
{
    static const std::vector<ostrel::rules::Check> made = ostrel::rules::make_checks();
    auto& all = const_cast<std::vector<ostrel::rules::Check>&>(ostrel::rules::checks());
    std::ranges::copy(made, all.begin());
}

int run_with(int number)
{
    const rlimit limit{kMostSeconds, kMostSeconds};
    setrlimit(RLIMIT_CPU, &limit);
    ostrel_mutant_in_force = number;
    remake_checks();
    return RUN_ALL_TESTS();
}

bool is_noticed(int number)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (std::freopen("/dev/null", "w", stdout) == nullptr) _exit(1);
        _exit(run_with(number));
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status != 0;
}

}  // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    ostrel::tests::all_rows();
    for (int number = 0; std::cin >> number;) {
        const bool noticed = is_noticed(number);
        std::cout << number << ' ' << noticed << '\n';
    }
}
