// Unmapped: what a map does not know of the dumps that were read.
#ifndef OSTREL_TOOLS_MAP_UNMAPPED_H
#define OSTREL_TOOLS_MAP_UNMAPPED_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "map/map.h"

namespace ostrel::tool {

class Unmapped {
 public:
    explicit Unmapped(const Map& map) : map_(&map) {}

    // count looks at a row.
    void count(std::string_view path, std::string_view value);

    // begin_gateway notes that the rows of a gateway begin, and tells whether they have ended before. It knows the
    // last gateways only.
    bool begin_gateway(std::string_view gateway);

    [[nodiscard]] std::uint64_t rows() const { return rows_; }
    [[nodiscard]] std::uint64_t gateways() const { return gateways_; }

    // text says what was counted, a line each; json is a line too.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::string json() const;

 private:
    struct Row {
        std::string_view path;
        std::uint64_t times;
    };
    [[nodiscard]] std::vector<Row> sorted() const;
    [[nodiscard]] std::string_view reason(std::string_view path) const;

    const Map* map_;
    ByText<std::uint64_t> counts_;
    std::uint64_t rows_ = 0;
    std::uint64_t unmapped_ = 0;
    std::uint64_t skipped_ = 0;
    std::uint64_t uncounted_ = 0;  // of paths beyond those that are kept
    std::uint64_t gateways_ = 0;
    std::uint64_t returned_ = 0;
    std::string first_returned_;
    std::string general_;
    std::vector<std::string_view> numbers_;
    std::array<std::size_t, 4096> known_{};  // hashes of gateways, by their last bits
};

}  // namespace ostrel::tool

#endif
