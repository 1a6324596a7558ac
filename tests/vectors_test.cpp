// Runs the rows of each function as a test in a suite for its module. --gtest_filter=hosts.isEmail selects
// the rows of one function.
//
// usage: vectors_test [MODULE]...
//
// If modules are named (hosts, wlan_check/keys), only their files are read. A folder selects all its modules.

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/run_tests.h"
#include "vectors/rows.h"

namespace ostrel::tests {

using calling::Caller;
using calling::Capture;
using calling::Edge;
using vectors::CallResult;
using vectors::Row;
using vectors::shown;

namespace {

std::string judged_row;

// tell_row prints the row that ends the process, and raises the signal again with its default action.
void tell_row(int signal)
{
    static_cast<void>(!write(STDERR_FILENO, judged_row.data(), judged_row.size()));
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

class VectorTest : public testing::Test {
 public:
    explicit VectorTest(const std::vector<Row>& rows) : rows_(rows) {}

 private:
    void TestBody() override
    {
        for (const Row& row : rows_) {
            judge(row);
            if (HasFailure() && GTEST_FLAG_GET(fail_fast)) return;
        }
    }

    static void judge(const Row& row)
    {
        judged_row = row.file.string() + ":" + std::to_string(row.line) + "\n";
        const testing::ScopedTrace trace(row.file.c_str(), row.line, shown(row.text));
        if (!row.fault.empty()) FAIL() << row.fault;
        // All rows share the callers: mapping fresh memory for each row would dominate the run time.
        static std::array<Caller, 2> callers = {Caller(Edge::kEnd), Caller(Edge::kBegin)};
        for (Caller& caller : callers) {
            caller.load(*row.given.function, row.given.values);
            const CallResult expected = expected_result(row, caller.written());
            CallResult actual;
            {
                Capture capture;
                actual = vectors::actual_result(caller, capture);
            }
            EXPECT_EQ(expected, actual);
        }
    }

    const std::vector<Row>& rows_;
};

void register_rows(const std::set<std::string>& modules)
{
    static std::map<std::pair<std::string, std::string>, std::vector<Row>> tests;
    for (Row& row : vectors::read_rows(modules)) {
        const std::string name(row.fault.empty() ? row.given.function->name : "faults");
        tests[{row.module, name}].push_back(std::move(row));
    }
    for (const auto& [names, rows] : tests) {
        testing::RegisterTest(names.first.c_str(), names.second.c_str(), nullptr, nullptr,
                              rows.front().file.c_str(), rows.front().line,
                              [&of = rows]() -> testing::Test* { return new VectorTest(of); });
    }
}

}  // namespace

}  // namespace ostrel::tests

int main(int argc, char** argv)
{
    using namespace ostrel::tests;
    testing::InitGoogleTest(&argc, argv);
    for (const int signal : {SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSEGV}) std::signal(signal, tell_row);
    try {
        register_rows({argv + 1, argv + argc});
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "vectors_test: %s\n", error.what());
        return 1;
    }
    return run_tests();
}
