// Unmapped: what dumps of gateways hold apart from judged values.
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

// why_unmapped is what a map says of a path that it has no check for; mostly nothing.
std::string_view why_unmapped(const Map& map, std::string_view path);

// SplitGateways knows the last gateways of a batch.
class SplitGateways {
 public:
    // begin notes that rows of a gateway begin, and counts it where other rows of it have ended before. Without a name it
    // is a gateway of its own.
    void begin(std::string_view gateway);

    [[nodiscard]] std::uint64_t count() const { return count_; }
    [[nodiscard]] const std::string& first() const { return first_; }

 private:
    std::uint64_t count_ = 0;
    std::string first_;
    std::array<std::size_t, 4096> known_{};  // hashes of gateways, by their last bits
};

// DumpCounts is of gateways and their parameters.
struct DumpCounts {
    std::uint64_t gateways = 0;
    std::uint64_t parameters = 0;
    std::uint64_t skipped = 0;
    std::uint64_t repeated = 0;
    std::uint64_t split = 0;
};

// Unmapped has at most so many paths, the first ones in the order of their bytes; parameters of others are counted
// together, also when they come again. So the sum of those of pieces is that of the whole.
class Unmapped {
 public:
    static constexpr std::size_t kMostPaths = 10'000;

    // has_map tells that something was judged by a map, and use_map says so.
    [[nodiscard]] bool has_map() const { return has_map_; }
    void use_map() { has_map_ = true; }

    void add(const DumpCounts& counts);
    void add(std::string_view path, std::uint64_t count, std::string_view because);
    void add_others(std::uint64_t count) { others_ += count; }
    void note_split(std::string_view first);
    void add(const Unmapped& other);

    // text says what was counted, a line each; json is the same as an object.
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
