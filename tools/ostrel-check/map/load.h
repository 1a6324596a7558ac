// Reads a map. Error messages contain the file, the line and the place of the problem.
#ifndef OSTREL_TOOLS_MAP_LOAD_H
#define OSTREL_TOOLS_MAP_LOAD_H

#include <string>

#include "map/map.h"
#include "read/encoding.h"

namespace ostrel::tool {

// load_map encodes strings that are compared with values or passed to checks. Throws std::invalid_argument.
Map load_map(const std::string& file, Encoding encoding);

}  // namespace ostrel::tool

#endif
