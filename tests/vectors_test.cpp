// Runs every row of vectors/*.ndjson as a test of its own, named after the check and the line.
//
// usage: vectors_test [MODULE]...
//
// With modules, only their files are read: vectors_test wlan_check.

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <utility>

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

    void TestBody() override
    {
        if (!row_.fault.empty()) FAIL() << row_.fault;
        if (!applies_here(row_)) GTEST_SKIP() << "depends on how atoi overflows";
        const Case& given = row_.given;
        // Their memory serves all rows.
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

 private:
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
    testing::InitGoogleTest(&argc, argv);
    const std::set<std::string> modules(argv + 1, argv + argc);
    for (const ostrel::tests::Row& row : ostrel::tests::read_rows(modules)) ostrel::tests::register_row(row);
    return RUN_ALL_TESTS();
}
