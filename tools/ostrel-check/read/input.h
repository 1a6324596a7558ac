// Input: the records of several files, in chunks of bounded size.
#ifndef OSTREL_TOOLS_READ_INPUT_H
#define OSTREL_TOOLS_READ_INPUT_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "read/cutter.h"
#include "read/reading.h"
#include "system/process.h"

namespace ostrel::tool {

// Chunk is some whole texts of one file, as a Reader takes them. The views hold until the next read.
struct Chunk {
    std::size_t file = 0;    // which of the files
    std::uint64_t line = 1;  // the number of the first line
    FileFormat format = FileFormat::kWords;
    std::string_view preamble;  // of the file
    std::string_view text;
    bool starts_file = false;
    std::string problem;  // not empty: why nothing can be read at this place; the text is empty
    std::string heading;
};

class Input {
 public:
    // The files are named as the user names them; "-" is standard input. The lines of the first one are numbered from
    // first_number.
    Input(const std::vector<std::string>& files, const Reading& reading, std::uint64_t first_number);

    // is_at_end tells that every file has been read. It opens the next file where one has ended, and says on
    // standard error what cannot be read.
    bool is_at_end();

    // is_ready tells that read has something to return without reading.
    [[nodiscard]] bool is_ready() const { return is_ready_; }

    // descriptor is what the next read reads from.
    [[nodiscard]] int descriptor() const { return file_.number(); }

    // read reads once, waiting if need be, and returns what has become whole texts.
    std::optional<Chunk> read();

    [[nodiscard]] std::uint64_t unreadable_files() const { return unreadable_files_; }

 private:
    bool open_file();
    void complain(int error);
    bool fill();
    bool begin_file();
    std::optional<Chunk> next_chunk();
    Chunk make_chunk();
    Chunk problem_chunk(std::string problem, std::size_t at);
    void end_file();
    void drop(std::size_t size);
    bool take_preamble(std::size_t size);
    [[nodiscard]] std::string_view rest() const { return {buffer_.data() + taken_, size_ - taken_}; }

    const std::vector<std::string>* files_;
    const Reading* reading_;
    std::uint64_t first_number_;
    std::size_t next_ = 0;  // of the files: the one after that which is open
    Descriptor file_;
    FileFormat format_ = FileFormat::kWords;
    std::unique_ptr<Cutter> cutter_;  // none: the file's first bytes are still to be looked at
    std::string preamble_;
    std::string preamble_problem_;
    std::string problem_;  // of the place that was reached
    bool ends_file_ = false;
    std::uint64_t line_ = 1;
    std::uint64_t problem_line_ = 1;
    bool starts_file_ = true;
    bool is_file_read_ = false;
    bool is_ready_ = false;
    std::vector<char> buffer_;
    std::size_t taken_ = 0;  // bytes at the front that were given out
    std::size_t size_ = 0;
    std::uint64_t unreadable_files_ = 0;
};

}  // namespace ostrel::tool

#endif
