// Cutter: finds where the records of a file end, as its bytes arrive.
#ifndef OSTREL_TOOLS_READ_CUTTER_H
#define OSTREL_TOOLS_READ_CUTTER_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "read/reading.h"

namespace ostrel::tool {

// kLongestText limits the size of a line, of a row of CSV, and of an element of an array.
inline constexpr std::size_t kLongestText = std::size_t{16} << 20;

// Cut is what a cutter found at the front of the bytes that have arrived. If all of it is empty, more bytes must
// arrive.
struct Cut {
    std::size_t dropped = 0;     // bytes at the front that belong to no record
    std::size_t preamble = 0;    // bytes after those that are the preamble of the file
    std::size_t size = 0;        // bytes after those that are whole texts, as Reader::next takes them
    std::string problem;         // why the bytes after those cannot be read, for the user
    std::size_t problem_at = 0;  // position of the fault, counted from their end
    bool ends_file = false;      // nothing after the fault can be read either
};

// Cutter keeps state, so each file needs a new one.
class Cutter {
 public:
    Cutter() = default;
    Cutter(const Cutter&) = delete;
    Cutter& operator=(const Cutter&) = delete;
    virtual ~Cutter() = default;

    // cut receives all bytes that were neither dropped nor cut off before, and receives them again when more have
    // arrived, at most kLongestText + 1. Once is_end is set, no more bytes arrive, and it drops or cuts off all of
    // them.
    virtual Cut cut(std::string_view bytes, bool is_end) = 0;
};

std::unique_ptr<Cutter> make_cutter(FileFormat format, const Reading& reading);

}  // namespace ostrel::tool

#endif
