// Constraints on arguments, which the build derives from the descriptions in rules/.
#ifndef OSTREL_TOOLS_EXPLAIN_CONSTRAINTS_H
#define OSTREL_TOOLS_EXPLAIN_CONSTRAINTS_H

#include <string_view>

namespace ostrel::tool {

// constraints returns a JSON object. Its member for each check is an array, which contains the constraints on
// each argument, or null for an argument that has none.
std::string_view constraints();

// json_schema returns the output of list --json-schema.
std::string_view json_schema();

}  // namespace ostrel::tool

#endif
