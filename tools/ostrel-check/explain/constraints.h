// Constraints: what is derived from the descriptions of rules/ when the program is built.
#ifndef OSTREL_TOOLS_EXPLAIN_CONSTRAINTS_H
#define OSTREL_TOOLS_EXPLAIN_CONSTRAINTS_H

#include <string_view>

namespace ostrel::tool {

// constraints is an object of JSON: for each check what each argument must be, or null.
std::string_view constraints();

// json_schema is what list --json-schema prints.
std::string_view json_schema();

}  // namespace ostrel::tool

#endif
