// Results as rows of a table, as lines of JSON, or as rows of CSV.
#ifndef OSTREL_TOOLS_RENDER_H
#define OSTREL_TOOLS_RENDER_H

#include <cstdint>
#include <string>
#include <string_view>

#include "counts.h"
#include "read/encoding.h"
#include "verdict.h"

namespace ostrel::tool {

// Format is how results are written: as a table, as JSON, as JSON with a line for each record and without what depends
// on the file, or as CSV.
enum class Format { kTable, kJson, kStream, kCsv };

struct Style {
    Format format = Format::kTable;
    bool only_refused = false;            // nothing is written for what was accepted, nor for answers
    bool with_args = false;               // JSON and CSV repeat the arguments
    Encoding encoding = Encoding::kUtf8;  // of the values, which JSON and CSV write as texts
};

// Place is where a case stands.
struct Place {
    std::string_view file;
    std::uint64_t line = 0;
};

// append_row adds a result to a table.
void append_row(std::string& out, const Place& place, const Result& result);

// append_json adds a line of JSON.
void append_json(std::string& out, const Style& style, const Place& place, const Result& result);

// append_csv adds a row of CSV, and csv_header returns the row that precedes all of them.
void append_csv(std::string& out, const Style& style, const Place& place, const Result& result);
std::string csv_header(const Style& style);

// append_after adds a line for each argument that the check may have written to.
void append_after(std::string& out, std::string_view indentation, const Result& result);

// summary says what became of the cases of each family, and in the last line what became of all; json_summary
// says it in JSON.
std::string summary(const Tally& tally, const Counts& counts, std::uint64_t unreadable_files);
std::string json_summary(const Tally& tally, const Counts& counts, std::uint64_t unreadable_files);

}  // namespace ostrel::tool

#endif
