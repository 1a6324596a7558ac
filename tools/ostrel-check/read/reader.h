// Reader: reads the records of one file from its chunks, one after another.
#ifndef OSTREL_TOOLS_READ_READER_H
#define OSTREL_TOOLS_READ_READER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "read/reading.h"
#include "read/record.h"

namespace ostrel::tool {

// Found is the result of reading a text.
enum class Found {
    kNothing,  // a blank line or a comment
    kRecord,   // a record, the last one of the text
    kMore,     // a record; the text contains another one
};

// Reader keeps no state between records, only memory for reuse, so that a worker can continue where another one
// ended. Workers use it, and the supervisor uses it to read the record that ended a worker.
class Reader {
 public:
    Reader() = default;
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    virtual ~Reader() = default;

    // next returns the size of the text at the front of rest that is read at once, including the separator before the
    // next one: a line, a row of CSV with its line ends, an element of an array. rest begins with such a text,
    // contains only whole ones and is not empty.
    virtual std::size_t next(std::string_view rest) = 0;

    // skip returns the size of the texts at the front of rest that begin before the given line of it, counted from 0.
    virtual std::size_t skip(std::string_view rest, std::uint64_t line);

    // read reads one record of such a text. part is the number of records of the text that were read before; only
    // nested JSON has more than one. Throws std::invalid_argument with a message for the user. In that case the
    // record contains what was read of it, and the rest of the text is skipped.
    virtual Found read(std::string_view text, std::size_t part, Record& record) = 0;
};

// make_reader returns the reader of a file. The preamble is what a chunk of the file carries for all of its records:
// the header of CSV. It must outlive the reader. Throws std::invalid_argument if the preamble cannot be used.
std::unique_ptr<Reader> make_reader(FileFormat format, const Reading& reading, std::string_view preamble);

}  // namespace ostrel::tool

#endif
