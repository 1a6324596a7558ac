// Reading a map: each problem is told with the file, the line and the place.
#ifndef OSTREL_TOOLS_MAP_LOAD_H
#define OSTREL_TOOLS_MAP_LOAD_H

#include <string>

#include "map/map.h"
#include "read/encoding.h"

namespace ostrel::tool {

// load_map reads a map, whose texts become bytes of that encoding where they are compared with values or passed. Throws
// std::invalid_argument with the file, the line and the place of what is wrong.
Map load_map(const std::string& file, Encoding encoding);

}  // namespace ostrel::tool

#endif
