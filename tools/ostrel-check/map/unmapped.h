// Unmapped: what dumps of gateways contain apart from judged values.
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

// why_unmapped returns the map's explanation for a path without a check, which is usually empty.
std::string_view why_unmapped(const Map& map, std::string_view path);

// SplitGateways remembers the last gateways of a batch.
class SplitGateways {
 public:
    // begin records that rows of a gateway begin, and counts the gateway if earlier rows of it have ended. It ignores
    // a gateway without a name, which is a separate one each time.
    void begin(std::string_view gateway);

    [[nodiscard]] std::uint64_t count() const { return count_; }
    [[nodiscard]] const std::string& first() const { return first_; }

 private:
    std::uint64_t count_ = 0;
    std::string first_;
    std::array<std::size_t, 4096> known_{};  // hashes of gateways, by their last bits
};

// DumpCounts counts gateways and their parameters.
struct DumpCounts {
    std::uint64_t gateways = 0;
    std::uint64_t parameters = 0;
    std::uint64_t skipped = 0;
    std::uint64_t repeated = 0;
    std::uint64_t split = 0;
};

// Unmapped stores at most kMostPaths paths, the first ones in byte order. It counts the parameters of other paths
// together, even if the paths occur again. Therefore the sum over pieces is the same as for the whole.
class Unmapped {
 public:
    static constexpr std::size_t kMostPaths = 10'000;

    // has_map returns whether anything was judged by a map. use_map sets this.
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
