// Results in the format that the user chose.
#ifndef OSTREL_TOOLS_WRITE_RENDER_H
#define OSTREL_TOOLS_WRITE_RENDER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "judge/verdict.h"
#include "read/encoding.h"

namespace ostrel::tool {

// Format is the format of results: a table, JSON, JSON with a line for each record and without anything that depends
// on the file, or CSV.
enum class Format { kTable, kJson, kStream, kCsv };

struct Style {
    Format format = Format::kTable;
    bool only_refused = false;            // nothing is written for accepted cases and answers
    bool with_args = false;               // JSON and CSV repeat the arguments
    Encoding encoding = Encoding::kUtf8;  // of the values, which JSON and CSV write as texts
    bool no_results = false;              // nothing is written
    bool redacts = false;                 // secret values are replaced by their length
    bool tries_known = false;             // calls that are known not to return are made too
    std::size_t columns = 0;              // of the terminal that a table is for; 0: nothing is wrapped
    std::string driver_problem;           // why --channels could not replace the wireless driver; or empty
};

// Location is the file and the line of a case.
struct Location {
    std::string_view file;
    std::uint64_t line = 0;
};

// append_result appends a result in that style.
void append_result(std::string& out, const Style& style, const Location& place, const Result& result);

}  // namespace ostrel::tool

#endif
