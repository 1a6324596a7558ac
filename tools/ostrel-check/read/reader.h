// Reads the records of a file from its chunks, one after another.
#ifndef OSTREL_TOOLS_READ_READER_H
#define OSTREL_TOOLS_READ_READER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "read/reading.h"
#include "read/record.h"

namespace ostrel::tool {

// count_lines returns the number of line feeds in the text.
std::uint64_t count_lines(std::string_view text);

// Found is the result of reading an entry.
enum class Found {
    kNothing,  // a blank line or a comment
    kRecord,   // the last record of the entry
    kMore,     // a record that is followed by another one in the same entry
};

// Reader divides a chunk into entries (lines, CSV rows or array elements) and reads their records. It keeps
// no state between records, only memory for reuse, so that a worker can continue where another one ended. The
// supervisor also uses it, to read the record that ended a worker.
class Reader {
 public:
    Reader() = default;
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    virtual ~Reader() = default;

    // next returns the size of the entry at the front of rest, including any separators before the next
    // entry. rest consists of at least one entry, and all its entries are whole.
    virtual std::size_t next(std::string_view rest) = 0;

    // skip returns the size of the entries at the front of rest that begin before the given line. Lines are
    // counted from 0 at the beginning of rest.
    virtual std::size_t skip(std::string_view rest, std::uint64_t line);

    // read reads one record of an entry. part is the number of records read before, 0 if there is no map.
    // Throws std::invalid_argument with a message for the user. In that case, the record contains the parts
    // that were read, and the rest of the entry is skipped.
    virtual Found read(std::string_view text, std::size_t part, Record& record) = 0;
};

// make_reader returns the reader for a file. The preamble, such as a CSV header, applies to all its records
// and must outlive the reader. Throws std::invalid_argument if the preamble cannot be used.
std::unique_ptr<Reader> make_reader(FileFormat format, const Reading& reading, std::string_view preamble);

}  // namespace ostrel::tool

#endif
