// Vectors: the rows of vectors/*.ndjson, and what a call leaves behind compared with what a row promises.
#ifndef OSTREL_TESTS_SUPPORT_VECTORS_H
#define OSTREL_TESTS_SUPPORT_VECTORS_H

#include <filesystem>
#include <iosfwd>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "catalogue/caller.h"
#include "catalogue/capture.h"
#include "catalogue/case.h"

namespace ostrel::tests {

// Row is one line of a file. One that cannot be run has a fault that says why.
struct Row {
    std::filesystem::path file;
    int line = 0;
    std::string text;
    nlohmann::json json;
    std::string fault;
};

// read_rows gives every row of every file, in order. Where modules are named only their files are read.
std::vector<Row> read_rows(const std::set<std::string>& modules = {});

// applies_here tells whether the row's answer is that of the C library at hand. The C library decides what
// atoi makes of a number that does not fit; rows that depend on it hold for glibc where long has 64 bits.
bool applies_here(const Row& row);

// VectorCase is a row made ready: what is passed, and what it promises.
struct VectorCase {
    const Row* row;
    catalogue::Case given;
};

// read_cases gives every row that applies here, ready to run. Throws std::invalid_argument for one with a
// fault. The rows must live as long as the cases.
std::vector<VectorCase> read_cases(const std::vector<Row>& rows);

// longest_text gives the length of the longest text that is passed.
std::size_t longest_text(const catalogue::Case& given);

// Outcome is all that a call leaves behind. Two outcomes print readably when they differ.
struct Outcome {
    int code = 0;
    std::string out;
    std::string err;
    bool flushed = true;
    nlohmann::json after = nlohmann::json::array();

    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* stream);

// shown quotes a text as JSON does; of a long one only the ends are shown.
std::string shown(const std::string& text);

// expected_outcome reads what a row promises; what it leaves out is the silent, unchanged default. before is
// what the caller holds before the call.
Outcome expected_outcome(const Row& row, const std::vector<catalogue::Written>& before);

// actual_outcome calls what is loaded.
Outcome actual_outcome(catalogue::Caller& caller, catalogue::Capture& capture);

}  // namespace ostrel::tests

#endif
