// Reader: takes the records of one file out of chunks of it, one after the other.
#ifndef OSTREL_TOOLS_READ_READER_H
#define OSTREL_TOOLS_READ_READER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "read/reading.h"
#include "read/record.h"

namespace ostrel::tool {

// Found is what a text turned out to be.
enum class Found {
    kNothing,  // a blank line or a comment
    kRecord,   // a record, the last one of the text
    kMore,     // a record; the text holds another one
};

// A reader keeps no state between records, only memory for reuse, so that a worker can continue where another one
// ended. Workers read with it, and the supervisor reads the record that ended a worker.
class Reader {
 public:
    Reader() = default;
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    virtual ~Reader() = default;

    // next returns the size of the text at the front of rest that is read at once, with what separates it from the
    // next one: a line, a row of CSV with its line ends, an element of an array. rest begins with such a text, holds
    // only whole ones and is not empty.
    virtual std::size_t next(std::string_view rest) = 0;

    // skip returns the size of the texts at the front of rest that begin before that line of it, the first of which is 0.
    virtual std::size_t skip(std::string_view rest, std::uint64_t line);

    // read reads one record of such a text. part tells how many records of the text were read before; only nested
    // JSON has more than one. Throws std::invalid_argument with a message for the user, after which the record shows
    // what was read of it, and the rest of the text is passed over.
    virtual Found read(std::string_view text, std::size_t part, Record& record) = 0;
};

// make_reader makes the reader of a file. The preamble is what a chunk of the file carries for all of its records:
// the header of CSV; it must outlive the reader. Throws std::invalid_argument for a preamble that cannot be used.
std::unique_ptr<Reader> make_reader(FileFormat format, const Reading& reading, std::string_view preamble);

}  // namespace ostrel::tool

#endif
