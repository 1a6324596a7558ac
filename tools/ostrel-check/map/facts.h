// Facts: what a data model states about its parameters.
#ifndef OSTREL_TOOLS_MAP_FACTS_H
#define OSTREL_TOOLS_MAP_FACTS_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ostrel::tool {

// Range has two ends, either of which may be missing.
struct Range {
    std::optional<long long> low;
    std::optional<long long> high;
};

struct ModelFacts {
    std::string type;    // as in the model; "string" for "list of string"
    std::string limits;  // as in the model
    bool is_list = false;
    bool is_hidden = false;  // read back as an empty text
    bool is_writable = false;
    std::vector<Range> numbers = {};  // the number is in one of these
    std::vector<Range> lengths = {};  // of a text: characters; of hexBinary and base64: bytes
    std::vector<Range> list_lengths = {};
    std::vector<std::string> keywords = {};
    std::vector<std::string> patterns = {};  // it matches one of these
};

using Model = std::unordered_map<std::string, ModelFacts>;

// read_facts reads a file of the columns path, access, type, limits and secret, separated by tabs. Throws
// std::invalid_argument with the file and the line.
Model read_facts(const std::string& file);

}  // namespace ostrel::tool

#endif
