// The parameters of gateways, read from rows with a path and a value, or from nested JSON.
#ifndef OSTREL_TOOLS_MAP_DUMP_H
#define OSTREL_TOOLS_MAP_DUMP_H

#include <cstddef>
#include <memory>
#include <string_view>

#include "map/flat_json.h"
#include "map/mapper.h"
#include "read/reader.h"
#include "read/reading.h"
#include "read/record.h"

namespace ostrel::tool {

// plain_reading returns the settings for reading the rows of a dump, without the map that applies to them.
Reading plain_reading(const Reading& reading);

// Dump reads a file's CSV rows or JSON objects. An object is either a row or a whole gateway.
class Dump {
 public:
    // Throws std::invalid_argument with a message for the user.
    Dump(FileFormat format, const Reading& reading, std::string_view preamble);

    // next returns the size of the row or object at the front of rest, including the separator after it.
    std::size_t next(std::string_view rest) { return reader_->next(rest); }

    // read reads a CSV row or an object, and next_row then returns its rows. Throws std::invalid_argument
    // with a message for the user. In that case, there are no rows, and faulty_row returns what was read of
    // the row.
    void read(std::string_view text);

    // faulty_row's path is empty if it is not known.
    [[nodiscard]] DumpRow faulty_row() const { return {path_, {}, 0, record_.members}; }

    // next_row stores the next row, except for its line number, or returns false if there is none. The row
    // is valid until the next call.
    bool next_row(DumpRow& row);

    [[nodiscard]] bool is_whole_gateway() const { return is_whole_gateway_; }

    // gateway returns the content of the column that identifies the row's gateway.
    [[nodiscard]] std::string_view gateway() const { return gateway_; }

 private:
    void read_json(std::string_view text);
    void read_row(std::string_view text);
    void read_path(std::string_view name);
    void read_gateway();
    [[nodiscard]] std::string_view path_name() const;

    Reading reading_;  // without the map
    bool is_json_;
    std::unique_ptr<Reader> reader_;
    Record record_;
    FlatJson json_;
    bool is_whole_gateway_ = false;
    std::string_view gateway_;
    std::string_view path_;
    std::string_view value_;
    std::size_t next_ = 0;
    std::size_t count_ = 0;
};

}  // namespace ostrel::tool

#endif
