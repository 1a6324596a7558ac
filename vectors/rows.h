// Rows: the lines of the files in this folder, and what they promise of a call.
#ifndef OSTREL_VECTORS_ROWS_H
#define OSTREL_VECTORS_ROWS_H

#include <filesystem>
#include <iosfwd>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "calling/case.h"
#include "vectors/answers.h"
#include "vectors/call_result.h"

namespace ostrel::vectors {

// Promise is what a row says of the call.
struct Promise {
    CallResult result;        // what the row leaves out is the silent default
    bool is_written = false;  // or else what the caller holds stays as it was
};

// RowReason is what a user is to be told of a refusal, as the row says it. What does not apply is empty.
struct RowReason {
    std::string id;
    std::string argument;
    std::string part;
    std::optional<std::size_t> item;
    std::optional<std::size_t> offset;

    bool operator==(const RowReason&) const = default;
};

void PrintTo(const RowReason& reason, std::ostream* stream);

// Row is one line of a file: what is passed, and what it promises. One that cannot be run has a fault that says
// why.
struct Row {
    std::filesystem::path file;
    std::string module;  // the path of the file in vectors/, without the ending
    int line = 0;
    std::string text;
    std::string fault;
    calling::Case given;
    Promise promise;
    std::map<Atoi, Promise> elsewhere;  // with such a C library it is this one
    std::optional<RowReason> reason;
};

// read_rows returns every row of every file, in order, but those of the module that OSTREL_TEST_FIRST in the environment
// names before all others, and without those that have a longer text than OSTREL_LONGEST_TEXT says. Where modules or
// folders are named, only their files are read. Throws std::invalid_argument where a file has no row, or where there is
// no such file.
std::vector<Row> read_rows(const std::set<std::string>& modules = {});

// read_cases returns every row of every file. Throws std::invalid_argument for one with a fault.
std::vector<Row> read_cases();

// longest_text returns the length of the longest text that is passed.
std::size_t longest_text(const calling::Case& given);

// expected_result is what a row promises where the caller holds before, with the C library at hand or another one.
CallResult expected_result(const Row& row, const std::vector<calling::Written>& before,
                           Atoi atoi = rules::atoi_here());

}  // namespace ostrel::vectors

#endif
