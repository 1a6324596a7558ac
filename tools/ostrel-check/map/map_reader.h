// MapReader: a Reader whose records are the calls that a map makes from a dump.
#ifndef OSTREL_TOOLS_MAP_MAP_READER_H
#define OSTREL_TOOLS_MAP_MAP_READER_H

#include <cstddef>
#include <string>
#include <string_view>

#include "map/dump.h"
#include "map/mapper.h"
#include "read/reader.h"

namespace ostrel::tool {

// MapReader takes a whole chunk of a file, which contains only whole gateways, as one text. After the last record of
// a text, read returns Found::kNothing.
class MapReader : public Reader {
 public:
    // The map must outlive the reader. Throws std::invalid_argument with a message for the user.
    MapReader(const Map& map, FileFormat format, const Reading& reading, std::string_view preamble)
        : dump_(format, reading, preamble), mapper_(map)
    {
    }

    std::size_t next(std::string_view rest) override { return rest.size(); }

    // skip skips whole gateways.
    std::size_t skip(std::string_view rest, std::uint64_t line) override;

    // read continues at its position, or starts again if necessary, because a worker may have to continue where
    // another one ended. It does not throw: a fault of a row becomes the problem of its record, and the next row is
    // read.
    Found read(std::string_view text, std::size_t part, Record& record) override;

 private:
    // Next is the next event in a text.
    enum class Next { kRow, kGatewayEnd, kProblem, kNothing };

    void begin(std::string_view text);
    bool make_next(Record& record);
    Next read_row();
    void take_text();
    void enter_gateway();
    void take_row();
    void end_gateway(std::uint64_t next_line);
    [[nodiscard]] bool is_of_gateway() const;

    Dump dump_;
    Mapper mapper_;
    DumpRow row_;
    Lack lack_;
    std::string problem_;
    std::string gateway_;
    bool is_in_gateway_ = false;
    bool is_whole_gateway_ = false;  // and it is one text
    bool is_ending_ = false;         // the calls at the end of the gateway are being made
    std::uint64_t end_line_ = 0;     // in this case, where the next gateway begins
    bool has_waiting_ = false;       // a row of the next gateway is waiting for the end of this one
    bool is_read_ = false;           // rows of a text are being taken

    std::string_view text_;
    std::string_view rest_;
    std::size_t begin_ = 0;  // of the last row, in the text
    std::size_t next_part_ = 0;
    std::uint64_t line_ = 0;  // from the beginning of the text
    std::uint64_t next_line_ = 0;
};

}  // namespace ostrel::tool

#endif
