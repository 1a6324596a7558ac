// Counts of everything in gateway dumps except judged values.
#ifndef OSTREL_TOOLS_MAP_UNMAPPED_H
#define OSTREL_TOOLS_MAP_UNMAPPED_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

struct Map;

// why_unmapped returns the map's explanation of why a path has no check, or an empty string.
std::string_view why_unmapped(const Map& map, std::string_view path);

// SplitGateways remembers recent gateways, and counts those whose rows are not adjacent.
class SplitGateways {
 public:
    // begin records the start of a run of adjacent rows of a gateway, and counts the gateway if it already
    // had such a run. It ignores gateways without a name, which are always separate.
    void begin(std::string_view gateway);

    [[nodiscard]] std::uint64_t count() const { return count_; }
    [[nodiscard]] const std::string& first() const { return first_; }

 private:
    std::uint64_t count_ = 0;
    std::string first_;
    std::array<std::size_t, 4096> known_{};  // hashes of gateway names, indexed by their low bits
};

struct DumpCounts {
    std::uint64_t gateways = 0;
    std::uint64_t parameters = 0;
    std::uint64_t skipped = 0;
    std::uint64_t repeated = 0;
    std::uint64_t split = 0;
};

// Unmapped stores at most kMostPaths paths, the first ones in byte order, and counts all others together,
// even if one occurs again, so that the counts of the parts of an input add up to those of the whole.
class Unmapped {
 public:
    static constexpr std::size_t kMostPaths = 10'000;

    [[nodiscard]] bool has_map() const { return has_map_; }
    void use_map() { has_map_ = true; }

    void add(const DumpCounts& counts);
    void add(std::string_view path, std::uint64_t count, std::string_view because);
    void add_others(std::uint64_t count) { others_ += count; }
    void note_split(std::string_view first);
    void add(const Unmapped& other);

    // text returns the counts, one per line. json returns them as an object.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] nlohmann::ordered_json json() const;

 private:
    struct Path {
        std::uint64_t count = 0;
        std::string because;
    };
    using Paths = std::map<std::string, Path, std::less<>>;

    [[nodiscard]] std::vector<const Paths::value_type*> sorted() const;
    [[nodiscard]] std::uint64_t count() const;

    bool has_map_ = false;
    DumpCounts counts_;
    std::string first_split_;
    Paths paths_;
    std::uint64_t others_ = 0;
};

}  // namespace ostrel::tool

#endif
