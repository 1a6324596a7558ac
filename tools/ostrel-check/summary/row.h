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
// No record: a parameter of a dump that the map has no check for. The example says why, in words, or is empty.
inline constexpr std::uint16_t kUnmapped = 0xFFFE;

// SummaryRow says what its records have in common, with one of them as an example. The views belong to whoever made it.
struct SummaryRow {
    std::uint16_t check = kNoCheck;  // its position among the functions of the catalogue
    Verdict verdict = Verdict::kMalformed;
    int code = 0;                // of what was accepted or refused
    std::string_view reason;     // its id; empty: none is known
    std::string_view parameter;  // without the numbers of instances; empty: none was named
    std::string_view example;    // an object of JSON; empty: there is none
};

// append_counted_parameter adds a parameter's path with {i} in the place of each number or alias of an instance. Of a
// very long path it keeps the beginning.
void append_counted_parameter(std::string& out, std::string_view path);

// row_of says which records are counted with that result. The row's parameter is put into parameter.
SummaryRow row_of(const Result& result, std::string& parameter);

// row_of_unmapped is for a parameter without a check.
SummaryRow row_of_unmapped(const Record& record, std::string& parameter);

// example_of shows a result in JSON: its id, its arguments and what is wrong.
std::string example_of(const Result& result, Encoding encoding);

}  // namespace ostrel::tool

#endif
