// The facts that a data model states about its parameters.
#ifndef OSTREL_TOOLS_MAP_FACTS_H
#define OSTREL_TOOLS_MAP_FACTS_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ostrel::tool {

struct Range {
    std::optional<long long> low;
    std::optional<long long> high;
};

struct ModelFacts {
    std::string type;    // as in the model; "string" for "list of string"
    std::string limits;  // as in the model
    bool is_list = false;
    bool is_hidden = false;  // reading the parameter returns an empty string
    bool is_writable = false;
    std::vector<Range> numbers = {};  // a number must be in one of these ranges
    std::vector<Range> lengths = {};  // in characters, or in bytes for hexBinary and base64
    std::vector<Range> list_lengths = {};
    std::vector<std::string> keywords = {};
    std::vector<std::string> patterns = {};  // a value must match one of these
};

using Model = std::unordered_map<std::string, ModelFacts>;

// read_facts reads a tab-separated file with the columns path, access, type, limits and secret. Throws
// std::invalid_argument with the file and the line.
Model read_facts(const std::string& file);

}  // namespace ostrel::tool

#endif
