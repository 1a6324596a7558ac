// MapReader: the calls that a map makes of a dump, as a Reader returns records.
#ifndef OSTREL_TOOLS_MAP_MAP_READER_H
#define OSTREL_TOOLS_MAP_MAP_READER_H

#include <cstddef>
#include <string>
#include <string_view>

#include "map/dump.h"
#include "map/mapper.h"
#include "read/reader.h"

namespace ostrel::tool {

// A text is a chunk of a file, of whole gateways. Its records are the calls; the last one is followed by nothing.
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

    // read goes on where it was, or begins again: a worker may have to go on where another one ended. Nothing is
    // thrown: what is wrong with a row is its record's problem, and the next row is read.
    Found read(std::string_view text, std::size_t part, Record& record) override;

 private:
    // Next is what comes next of a text.
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
    bool is_ending_ = false;         // the calls at the end of the gateway are made
    std::uint64_t end_line_ = 0;     // then: where the next one begins
    bool has_waiting_ = false;       // a row of the next gateway waits for that
    bool is_read_ = false;           // rows are taken of a text

    std::string_view text_;
    std::string_view rest_;
    std::size_t begin_ = 0;  // of the row that was read last, in the text
    std::size_t next_part_ = 0;
    std::uint64_t line_ = 0;  // from the begin of the text
    std::uint64_t next_line_ = 0;
};

}  // namespace ostrel::tool

#endif
