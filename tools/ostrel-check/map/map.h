// A map assigns checks to the parameters of a configuration, and defines where the checks' other arguments
// come from.
#ifndef OSTREL_TOOLS_MAP_MAP_H
#define OSTREL_TOOLS_MAP_MAP_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "catalogue/catalogue.h"
#include "map/path.h"

namespace ostrel::tool {

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

template <typename T>
using ByText = std::unordered_map<std::string, T, TextHash, std::equal_to<>>;

// WordTable contains, for each value in the data model, the string that is passed to the check.
using WordTable = ByText<std::string>;

struct Source {
    enum class Kind {
        kValue,     // the parameter itself
        kSibling,   // other parameters of the same gateway, one for each string of the argument
        kConstant,  // always the same string
    };
    Kind kind = Kind::kValue;
    std::vector<PathPattern> paths = {};
    std::optional<WordTable> words = std::nullopt;
    std::string constant = {};
    std::string example = {};  // a value for comparisons, before the words are applied
};

struct MapEntry {
    PathPattern path;
    const catalogue::Function* function = nullptr;
    std::vector<Source> sources = {};       // one for each argument that must be given, in order
    std::vector<std::string> skipped = {};  // values that carry no information
    std::vector<std::string> tried = {};    // values that comparisons try first
    std::string because = {};
    std::size_t call = 0;   // entries with the same number make the same call, each for a different parameter
    std::size_t line = 0;   // line in the map's file
    std::size_t value = 0;  // index of the argument that takes the value, or sources.size() if none does
    bool has_siblings = false;  // the whole gateway must be read before the call
};

struct NotMapped {
    std::string path;
    std::string check;  // a check with a similar name; may be empty
    std::string because;
};

// KnownPath is the map's information about all paths with the same general form.
struct KnownPath {
    std::vector<std::size_t> entries = {};
    bool is_sibling = false;  // calls for other parameters may need the values at these paths
};

struct Map {
    std::string file;
    std::string about;
    std::string root;   // the prefix of all paths
    std::string facts;  // the path of the facts file; empty if there is none
    std::vector<MapEntry> entries;
    std::vector<NotMapped> not_mapped;
    ByText<KnownPath> paths;  // by their general form
};

}  // namespace ostrel::tool

#endif
