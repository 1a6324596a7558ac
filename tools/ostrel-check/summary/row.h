// Row: the records of a batch that are counted together.
#ifndef OSTREL_TOOLS_SUMMARY_ROW_H
#define OSTREL_TOOLS_SUMMARY_ROW_H

#include <cstdint>
#include <string>
#include <string_view>

#include "judge/verdict.h"
#include "read/encoding.h"

namespace ostrel::tool {

inline constexpr std::uint16_t kNoCheck = 0xFFFF;
// kUnmapped means that there is no record, but a parameter of a dump for which the map has no check. The example
// explains why, or is empty.
inline constexpr std::uint16_t kUnmapped = 0xFFFE;

// SummaryRow is what its records have in common, with one of them as an example. It does not own the memory of its
// views.
struct SummaryRow {
    std::uint16_t check = kNoCheck;  // its index in the functions of the catalogue
    Verdict verdict = Verdict::kMalformed;
    int code = 0;                // of an accepted or refused case
    std::string_view reason;     // its id; empty: none is known
    std::string_view parameter;  // without the numbers of instances; empty: none was named
    std::string_view example;    // an object of JSON; empty: there is none
};

// append_counted_parameter appends a parameter's path with {i} in place of each number or alias of an instance. It
// keeps only the beginning of a very long path.
void append_counted_parameter(std::string& out, std::string_view path);

// row_of returns the row in which a result is counted. It stores the row's parameter in parameter.
SummaryRow row_of(const Result& result, std::string& parameter);

// row_of_unmapped returns the row of a parameter without a check.
SummaryRow row_of_unmapped(const Record& record, std::string& parameter);

// example_of returns a result in JSON: its id, its arguments and the problem.
std::string example_of(const Result& result, Encoding encoding);

}  // namespace ostrel::tool

#endif
