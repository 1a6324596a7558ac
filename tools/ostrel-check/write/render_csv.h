// Results as rows of CSV.
#ifndef OSTREL_TOOLS_WRITE_RENDER_CSV_H
#define OSTREL_TOOLS_WRITE_RENDER_CSV_H

#include <string>

#include "write/render.h"

namespace ostrel::tool {

void append_csv(std::string& out, const Style& style, const Location& place, const Result& result);
std::string csv_header(const Style& style);

}  // namespace ostrel::tool

#endif
