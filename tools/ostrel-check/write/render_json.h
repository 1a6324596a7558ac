// Results as lines of JSON.
#ifndef OSTREL_TOOLS_WRITE_RENDER_JSON_H
#define OSTREL_TOOLS_WRITE_RENDER_JSON_H

#include <string>

#include "write/render.h"

namespace ostrel::tool {

// json_line returns a view that is valid until the next call.
std::string_view json_line(const Style& style, const Location& place, const Result& result);

}  // namespace ostrel::tool

#endif
