// Counts: how many cases of each family came to which end.
#ifndef OSTREL_TOOLS_COUNTS_H
#define OSTREL_TOOLS_COUNTS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "verdict.h"

namespace ostrel::tool {

// Counts is memory that processes can share: it holds no pointers.
class Counts {
 public:
    void add(const Result& result);
    void add(const Counts& other);
    void clear() { *this = Counts(); }

    // table shows a line for each family that had cases; json shows the same as an object.
    [[nodiscard]] std::string table() const;
    [[nodiscard]] std::string json() const;

 private:
    static constexpr std::size_t kMostFamilies = 32;
    static constexpr std::size_t kMostEnds = 32;

    std::array<std::array<std::uint64_t, kMostEnds>, kMostFamilies> counts_{};
};

}  // namespace ostrel::tool

#endif
