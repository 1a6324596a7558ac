// Results as rows of a table.
#ifndef OSTREL_TOOLS_WRITE_RENDER_TABLE_H
#define OSTREL_TOOLS_WRITE_RENDER_TABLE_H

#include <string>
#include <string_view>

#include "write/render.h"

namespace ostrel::tool {

void append_row(std::string& out, const Style& style, const Location& place, const Result& result);

// append_after appends a line for each argument that the check may have written to.
void append_after(std::string& out, const Result& result, std::size_t indentation, std::size_t columns);

// kLibrary precedes each line that the library itself printed.
inline constexpr std::string_view kLibrary = "library: ";

}  // namespace ostrel::tool

#endif
