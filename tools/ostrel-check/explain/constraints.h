// Constraints: data that the build derives from the descriptions of rules/.
#ifndef OSTREL_TOOLS_EXPLAIN_CONSTRAINTS_H
#define OSTREL_TOOLS_EXPLAIN_CONSTRAINTS_H

#include <string_view>

namespace ostrel::tool {

// constraints returns a JSON object with the constraints of each argument of each check, or null.
std::string_view constraints();

// json_schema returns the output of list --json-schema.
std::string_view json_schema();

}  // namespace ostrel::tool

#endif
