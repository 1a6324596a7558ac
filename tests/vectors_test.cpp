// Runs every row of vectors/*.ndjson as a test of its own, named after the check and the line.
//
// usage: vectors_test [MODULE]...
//
// With modules, only their files are read: vectors_test wlan_check.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

#include "tests/support/run_tests.h"
#include "tests/support/vectors.h"

namespace ostrel::tests {

using catalogue::Caller;
using catalogue::Capture;
using catalogue::Case;
using catalogue::Edge;

namespace {

class VectorTest : public testing::Test {
 public:
    explicit VectorTest(Row row) : row_(std::move(row)) {}

 private:
    void TestBody() override
    {
        if (!row_.fault.empty()) FAIL() << row_.fault;
        const Case& given = row_.given;
        // The rows share them, for most of a row's time would go into mapping their memory.
        static std::array<Caller, 2> callers = {Caller(Edge::kEnd), Caller(Edge::kBegin)};
        for (Caller& caller : callers) {
            caller.load(*given.function, given.values);
            const Outcome expected = expected_outcome(row_, caller.written());
            Outcome actual;
            {
                Capture capture;
                actual = actual_outcome(caller, capture);
            }
            EXPECT_EQ(expected, actual) << shown(row_.text);
        }
    }

    Row row_;
};

void register_row(const Row& row)
{
    const std::string suite = "vectors_" + row.file.stem().string();
    std::string name = "line_" + std::to_string(row.line);
    if (row.fault.empty()) name = std::string(row.given.function->name) + "_" + name;
    testing::RegisterTest(suite.c_str(), name.c_str(), nullptr, row.text.substr(0, 200).c_str(),
                          row.file.c_str(), row.line,
                          [row]() -> testing::Test* { return new VectorTest(row); });
}

}  // namespace

}  // namespace ostrel::tests

int main(int argc, char** argv)
{
    using namespace ostrel::tests;
    testing::InitGoogleTest(&argc, argv);
    const std::set<std::string> modules(argv + 1, argv + argc);
    try {
        for (const Row& row : read_rows(modules)) register_row(row);
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "vectors_test: %s\n", error.what());
        return 1;
    }
    return run_tests();
}
