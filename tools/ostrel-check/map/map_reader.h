// A Reader whose records are the calls that a map derives from a dump.
#ifndef OSTREL_TOOLS_MAP_MAP_READER_H
#define OSTREL_TOOLS_MAP_MAP_READER_H

#include <cstddef>
#include <string>
#include <string_view>

#include "map/dump.h"
#include "map/mapper.h"
#include "read/reader.h"

namespace ostrel::tool {

// MapReader reads a whole chunk, which contains only whole gateways, as one entry. After the last record of a
// chunk, read() returns Found::kNothing.
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

    // read continues where the previous call stopped. In a worker that takes over from another one, it starts
    // again at the beginning of the chunk and skips the records that were read before. read does not throw.
    // If a row is faulty, read stores the problem in the row's record and continues with the next row.
    Found read(std::string_view text, std::size_t part, Record& record) override;

 private:
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
    bool is_whole_gateway_ = false;  // the current gateway is a single JSON object
    bool is_ending_ = false;         // the calls at the end of the gateway are being derived
    std::uint64_t end_line_ = 0;     // the line at which the next gateway begins, if is_ending_
    bool has_waiting_ = false;       // a row of the next gateway is waiting for the end of this one
    bool is_read_ = false;           // the rows that dump_ has read are being taken

    std::string_view text_;
    std::string_view rest_;
    std::size_t begin_ = 0;  // position of the last row in text_
    std::size_t next_part_ = 0;
    std::uint64_t line_ = 0;  // counted from the beginning of text_
    std::uint64_t next_line_ = 0;
};

}  // namespace ostrel::tool

#endif
