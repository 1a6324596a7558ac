// Map: assigns checks to parameters of a configuration, and defines the sources of their other arguments.
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

// WordTable contains the text that is passed for each value of the model.
using WordTable = ByText<std::string>;

// Source defines where the value of an argument comes from.
struct Source {
    enum class Kind {
        kValue,     // the parameter itself
        kSibling,   // other parameters of the same gateway; if several, each is one of the argument's texts
        kConstant,  // always the same text
    };
    Kind kind = Kind::kValue;
    std::vector<PathPattern> paths = {};
    std::optional<WordTable> words = std::nullopt;
    std::string constant = {};
    std::string example = {};  // a value for comparisons, before words
};

// MapEntry is a parameter and a check that judges it.
struct MapEntry {
    PathPattern path;
    const catalogue::Function* function = nullptr;
    std::vector<Source> sources = {};       // of each argument that must be given, in order
    std::vector<std::string> skipped = {};  // values that carry no information
    std::vector<std::string> tried = {};    // values for comparisons
    std::string because = {};
    std::size_t call = 0;   // entries of one number make the same call, each for another of its parameters
    std::size_t line = 0;   // of the map's file
    std::size_t value = 0;  // index of the value among the arguments, or their number if it is none
    bool has_siblings = false;  // the whole gateway must be known before the call
};

struct NotMapped {
    std::string path;
    std::string check;  // a check with a similar name; may be empty
    std::string because;
};

// KnownPath is the map's information about the paths with one general form.
struct KnownPath {
    std::vector<std::size_t> entries = {};
    bool is_sibling = false;  // other parameters may need it
};

struct Map {
    std::string file;
    std::string about;
    std::string root;   // the prefix of all paths
    std::string facts;  // the path of the file of facts; empty: none
    std::vector<MapEntry> entries;
    std::vector<NotMapped> not_mapped;
    ByText<KnownPath> paths;  // by the general path
};

}  // namespace ostrel::tool

#endif
