// The rows in the files of this folder, and the results that the rows promise.
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

// Promise is the result that a row requires of its call.
struct Promise {
    CallResult result;        // members that the row omits have their defaults
    bool is_written = false;  // false if the arguments are unchanged
};

// RowReason is the reason that a row contains for a refusal. Members that do not apply are empty.
struct RowReason {
    std::string id;
    std::string argument;
    std::string part;
    std::optional<std::size_t> item;
    std::optional<std::size_t> offset;

    bool operator==(const RowReason&) const = default;
};

void PrintTo(const RowReason& reason, std::ostream* stream);

// Row is one line of a file: a call and its promised result. If the row cannot be run, fault contains the
// reason.
struct Row {
    std::filesystem::path file;
    std::string module;  // the path of the file in vectors/, without the extension
    int line = 0;
    std::string text;
    std::string fault;
    calling::Case given;
    Promise promise;
    std::map<Atoi, Promise> elsewhere;  // replaces promise for these kinds of C library
    std::optional<RowReason> reason;
};

// read_rows returns the rows of all files, or of the given modules or folders. The module named by the
// environment variable OSTREL_TEST_FIRST comes first, and rows with a string of more than OSTREL_LONGEST_TEXT
// bytes are omitted. It throws std::invalid_argument if a file has no row or does not exist.
std::vector<Row> read_rows(const std::set<std::string>& modules = {});

// read_cases returns the rows of all files. It throws std::invalid_argument if a row has a fault.
std::vector<Row> read_cases();

// longest_text returns the length of the longest string argument.
std::size_t longest_text(const calling::Case& given);

// For expected_result, before contains the arguments that may be written, as they were before the call.
CallResult expected_result(const Row& row, const std::vector<calling::Written>& before,
                           Atoi atoi = rules::atoi_here());

}  // namespace ostrel::vectors

#endif
