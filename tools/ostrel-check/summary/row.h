// A row of a summary, which counts similar records of a batch.
#ifndef OSTREL_TOOLS_SUMMARY_ROW_H
#define OSTREL_TOOLS_SUMMARY_ROW_H

#include <cstdint>
#include <string>
#include <string_view>

#include "judge/verdict.h"
#include "write/render.h"

namespace ostrel::tool {

inline constexpr std::uint16_t kNoCheck = 0xFFFF;
// kUnmapped marks a row that does not count records, but parameters in dumps for which the map has no check.
// The row's example is the map's explanation of why, or is empty.
inline constexpr std::uint16_t kUnmapped = 0xFFFE;

// SummaryRow contains what its records have in common, and one of them as an example. It owns no memory.
struct SummaryRow {
    std::uint16_t check = kNoCheck;  // index of the check in the catalogue's functions
    Verdict verdict = Verdict::kMalformed;
    int code = 0;                // the result code of an accepted or refused case
    std::string_view reason;     // id of the reason; empty if it is not known
    std::string_view parameter;  // without instance numbers; empty if the record names none
    std::string_view example;    // a JSON object; empty if there is none
};

// append_counted_parameter puts {i} for each instance number or alias, and shortens a very long path.
void append_counted_parameter(std::string& out, std::string_view path);

// row_of stores the parameter of a result's row in the string parameter, which must outlive the row. If the
// summary will have no rows, the reason and the parameter are left out, so that fewer cases differ.
SummaryRow row_of(const Result& result, const Style& style, std::string& parameter);

// row_of_unmapped returns the row in which a parameter without a check is counted.
SummaryRow row_of_unmapped(const Record& record, std::string& parameter);

// example_of returns id, arguments and problem as JSON. It returns an empty string for an acceptance or an
// answer, and if the summary will have no rows.
std::string example_of(const Result& result, const Style& style);

}  // namespace ostrel::tool

#endif
