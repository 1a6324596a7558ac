// JSON as a tree of values, for small documents.
#ifndef OSTREL_TOOLS_READ_JSON_TREE_H
#define OSTREL_TOOLS_READ_JSON_TREE_H

#include <nlohmann/json_fwd.hpp>
#include <string_view>

namespace ostrel::tool {

// json_tree parses JSON. A number that does not fit in 64 bits becomes a string that contains its token.
// Throws std::invalid_argument, with a message for the user, if the JSON is invalid or nested too deeply.
nlohmann::ordered_json json_tree(std::string_view text);

}  // namespace ostrel::tool

#endif
