// Finds where the records of a file end while its bytes are arriving.
#ifndef OSTREL_TOOLS_READ_CUTTER_H
#define OSTREL_TOOLS_READ_CUTTER_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "read/reading.h"

namespace ostrel::tool {

// kLongestText is the maximum size, in bytes, of a line, a CSV row or an array element.
inline constexpr std::size_t kLongestText = std::size_t{16} << 20;

// Cut describes what a cutter found at the front of the bytes that have arrived. If it found nothing, the
// cutter needs more bytes.
struct Cut {
    std::size_t dropped = 0;     // bytes at the front that belong to no record
    std::size_t preamble = 0;    // bytes after the dropped ones that are the file's preamble
    std::size_t size = 0;        // bytes after the preamble that are whole entries, as Reader defines them
    std::string problem;         // why the bytes after the entries cannot be read, for the user
    std::size_t problem_at = 0;  // position of the fault, counted from the end of the entries
    bool ends_file = false;      // the rest of the file cannot be read either
};

// Cutter keeps state, so each file needs a new one.
class Cutter {
 public:
    Cutter() = default;
    Cutter(const Cutter&) = delete;
    Cutter& operator=(const Cutter&) = delete;
    virtual ~Cutter() = default;

    // cut receives all bytes that it has neither dropped nor cut off yet, at most kLongestText + 1. It is
    // called again when more bytes have arrived. If is_end is set, no more will arrive, and cut drops or cuts
    // off all remaining bytes.
    virtual Cut cut(std::string_view bytes, bool is_end) = 0;
};

std::unique_ptr<Cutter> make_cutter(FileFormat format, const Reading& reading);

}  // namespace ostrel::tool

#endif
