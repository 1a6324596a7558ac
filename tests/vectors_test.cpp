// Runs every row of vectors/*.ndjson as a test of its own, named after the check and the line.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "catalogue/caller.h"
#include "catalogue/capture.h"
#include "catalogue/case.h"

namespace ostrel::catalogue {

using nlohmann::json;

namespace {

// Outcome is all that a call leaves behind. Two outcomes print readably when they differ.
struct Outcome {
    int code = 0;
    std::string out;
    std::string err;
    bool flushed = true;
    json after = json::array();

    bool operator==(const Outcome&) const = default;
};

// shown quotes a text as JSON does; of a long one only the ends are shown.
std::string shown(const std::string& text)
{
    constexpr std::size_t kEnds = 200;
    if (text.size() <= 2 * kEnds) return json(utf8_from_bytes(text)).dump();
    return json(utf8_from_bytes(text.substr(0, kEnds))).dump() + "...(" + std::to_string(text.size()) +
           " bytes)..." + json(utf8_from_bytes(text.substr(text.size() - kEnds))).dump();
}

void PrintTo(const Outcome& outcome, std::ostream* stream)
{
    *stream << "\n  code    " << outcome.code << "\n  out     " << shown(outcome.out) << "\n  flushed "
            << std::boolalpha << outcome.flushed << "\n  err     " << shown(outcome.err) << "\n  after   "
            << shown(outcome.after.dump()) << "\n";
}

Outcome call(Caller& caller, Capture& capture)
{
    Outcome outcome;
    outcome.code = caller.call();
    Printed printed = capture.take();
    outcome.flushed = printed.flushed == printed.out.size();
    outcome.out = std::move(printed.out);
    outcome.err = std::move(printed.err);
    for (const Written& written : caller.written()) outcome.after.push_back(json_from_value(written.value));
    return outcome;
}

// expected_from_json reads what a row promises; what it leaves out is the silent, unchanged default.
Outcome expected_from_json(const json& row, const std::vector<Written>& before)
{
    Outcome expected;
    expected.code = row.at("code").get<int>();
    if (row.contains("out")) expected.out = text_from_json(row["out"]);
    if (row.contains("err")) expected.err = text_from_json(row["err"]);
    expected.flushed = row.value("flushed", true);
    if (row.contains("after")) {
        for (const json& value : row["after"])
            expected.after.push_back(json_from_value(value_from_json(value)));
    } else {
        for (const Written& written : before) expected.after.push_back(json_from_value(written.value));
    }
    return expected;
}

// The C library decides what atoi makes of a number that does not fit; rows that depend on it are marked and
// hold for glibc where long has 64 bits.
bool applies_here(const json& row)
{
#if defined(__GLIBC__) && !defined(__UCLIBC__)
    return !row.value("overflow", false) || sizeof(long) == 8;
#else
    return !row.value("overflow", false);
#endif
}

class VectorTest : public testing::Test {
 public:
    explicit VectorTest(json row) : row_(std::move(row)) {}

    void TestBody() override
    {
        if (!applies_here(row_)) GTEST_SKIP() << "depends on how atoi overflows";
        const Case given = case_from_json(row_);
        for (const Edge edge : {Edge::kEnd, Edge::kBegin}) {
            Caller caller(edge);
            caller.load(*given.function, given.values);
            const Outcome expected = expected_from_json(row_, caller.written());
            Outcome actual;
            {
                Capture capture;
                actual = call(caller, capture);
            }
            EXPECT_EQ(expected, actual) << shown(row_.dump());
        }
    }

 private:
    json row_;
};

// MalformedRow is a row that cannot be run.
class MalformedRow : public testing::Test {
 public:
    explicit MalformedRow(std::string why) : why_(std::move(why)) {}
    void TestBody() override { FAIL() << why_; }

 private:
    std::string why_;
};

std::string fault_of(const json& row)
{
    static const std::set<std::string> kKnown = {"check", "args",    "code",     "out", "err",
                                                 "after", "flushed", "overflow", "why"};
    for (const auto& member : row.items()) {
        if (!kKnown.contains(member.key())) return "unknown member " + member.key();
    }
    if (!row.contains("code")) return "no code";
    case_from_json(row);
    return "";
}

void register_file(const std::filesystem::path& path)
{
    const std::string suite = "vectors_" + path.stem().string();
    std::ifstream file(path);
    std::string line;
    std::set<std::string> seen;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty()) continue;
        std::string name = "line_" + std::to_string(number);
        json row;
        std::string fault;
        try {
            row = json::parse(line);
            fault = fault_of(row);
            if (fault.empty()) name = row["check"].get<std::string>() + "_" + name;
            const std::string call = row["check"].dump() + row["args"].dump();
            if (!seen.insert(call).second) fault = "the same call stands in an earlier line";
        } catch (const std::exception& error) {
            fault = error.what();
        }
        testing::RegisterTest(suite.c_str(), name.c_str(), nullptr, line.substr(0, 200).c_str(), path.c_str(),
                              number, [row, fault]() -> testing::Test* {
                                  if (!fault.empty()) return new MalformedRow(fault);
                                  return new VectorTest(row);
                              });
    }
}

}  // namespace

}  // namespace ostrel::catalogue

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(OSTREL_SOURCE_DIR "/vectors")) {
        if (entry.path().extension() == ".ndjson") files.push_back(entry.path());
    }
    std::ranges::sort(files);
    for (const auto& file : files) ostrel::catalogue::register_file(file);
    return RUN_ALL_TESTS();
}
