// Results as rows of a table, or as lines of JSON.
#ifndef OSTREL_TOOLS_RENDER_H
#define OSTREL_TOOLS_RENDER_H

#include <cstdint>
#include <string>
#include <string_view>

#include "counts.h"
#include "verdict.h"

namespace ostrel::tool {

// Place is where a case stands.
struct Place {
    std::string_view file;
    std::uint64_t line = 0;
};

// append_row adds a result to a table.
void append_row(std::string& out, const Place& place, const Result& result);

// append_json adds a line of JSON; without a place it depends on the case alone.
void append_json(std::string& out, const Place* place, const Result& result);

// append_after adds a line for each argument that the check may have written to.
void append_after(std::string& out, std::string_view indentation, const Result& result);

// summary says what became of the cases of each family, and in the last line what became of all; json_summary
// says it in JSON.
std::string summary(const Tally& tally, const Counts& counts, std::uint64_t unreadable_files);
std::string json_summary(const Tally& tally, const Counts& counts, std::uint64_t unreadable_files);

}  // namespace ostrel::tool

#endif
