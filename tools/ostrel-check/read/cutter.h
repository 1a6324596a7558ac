// Cutter: finds where the records of a file end, as its bytes arrive.
#ifndef OSTREL_TOOLS_READ_CUTTER_H
#define OSTREL_TOOLS_READ_CUTTER_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "read/reading.h"

namespace ostrel::tool {

// Cut is what a cutter found at the front of the bytes that have arrived.
struct Cut {
    std::size_t size = 0;      // bytes of whole texts, as Reader::next takes them
    bool is_preamble = false;  // they are the file's preamble, and no record
    std::string problem;       // why nothing can be read at the place behind size, for the user
    bool ends_file = false;    // and nothing behind that either
};

class Cutter {
 public:
    Cutter() = default;
    Cutter(const Cutter&) = delete;
    Cutter& operator=(const Cutter&) = delete;
    virtual ~Cutter() = default;

    // cut is given all bytes that were not cut off before, and again when more have arrived. At the end of the file
    // is_end is set, and what is there is all there is.
    virtual Cut cut(std::string_view bytes, bool is_end) = 0;
};

std::unique_ptr<Cutter> make_cutter(FileFormat format, const Reading& reading);

}  // namespace ostrel::tool

#endif
