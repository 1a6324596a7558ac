// Reads a map. Error messages contain the file, the line and the place of the problem.
#ifndef OSTREL_TOOLS_MAP_LOAD_H
#define OSTREL_TOOLS_MAP_LOAD_H

#include <string>

#include "map/map.h"
#include "read/encoding.h"

namespace ostrel::tool {

// load_map reads a map. Strings that are compared with values, or passed to checks, are converted to the
// encoding. Throws std::invalid_argument with the file, the line and the place of a problem.
Map load_map(const std::string& file, Encoding encoding);

}  // namespace ostrel::tool

#endif
