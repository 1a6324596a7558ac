// Constraints on arguments, which the build derives from the descriptions in rules/.
#ifndef OSTREL_TOOLS_EXPLAIN_CONSTRAINTS_H
#define OSTREL_TOOLS_EXPLAIN_CONSTRAINTS_H

#include <string_view>

namespace ostrel::tool {

// constraints returns a JSON object with a member for each check. The member is an array with an element for
// each argument, which contains the argument's constraints, or is null if there are none.
std::string_view constraints();

// json_schema returns the output of list --json-schema.
std::string_view json_schema();

}  // namespace ostrel::tool

#endif
