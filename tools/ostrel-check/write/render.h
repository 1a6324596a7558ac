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

// kStream is JSON that has a line for every entry and omits the name of the file.
enum class Format { kTable, kJson, kStream, kCsv };

struct Style {
    Format format = Format::kTable;
    bool only_refused = false;            // accepted cases and answers are omitted
    bool with_args = false;               // JSON and CSV repeat the arguments
    Encoding encoding = Encoding::kUtf8;  // of the values, for JSON and CSV
    bool no_results = false;              // results are not written
    bool with_rows = false;               // the summary has rows by check, parameter and reason
    bool redacts = false;                 // secret values are replaced by their length
    bool tries_known = false;             // calls that are known not to return are made too
    std::string group;                    // the column that tells gateways apart, which a table shows
    std::size_t columns = 0;              // width of a table, or 0 if nothing is to be wrapped
    std::string driver_problem;           // why --channels could not replace the wireless driver, or empty
};

struct Location {
    std::string_view file;
    std::uint64_t line = 0;
};

// render_result renders a result. The returned view refers to memory, or is valid until the next call.
std::string_view render_result(std::string& memory, const Style& style, const Location& place,
                               const Result& result);

}  // namespace ostrel::tool

#endif
