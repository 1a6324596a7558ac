// JSON Schemas from the source tree, embedded in the program.
#ifndef OSTREL_TOOLS_EXPLAIN_SCHEMAS_H
#define OSTREL_TOOLS_EXPLAIN_SCHEMAS_H

#include <string_view>

namespace ostrel::tool {

std::string_view result_schema();   // result.schema.json
std::string_view map_schema();      // map.schema.json
std::string_view summary_schema();  // summary.schema.json

}  // namespace ostrel::tool

#endif
