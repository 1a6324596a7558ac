// Reads the records of several files in chunks of bounded size.
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

// Chunk is a sequence of whole entries (see Reader) of one file. Its views are valid until the next read.
struct Chunk {
    std::size_t file = 0;    // index of the file
    std::uint64_t line = 1;  // the number of the first line
    FileFormat format = FileFormat::kWords;
    std::string_view preamble;  // the file's preamble
    std::string_view text;
    bool starts_file = false;
    std::string problem;  // why nothing can be read here, or empty if there is text
    std::string heading;
};

class Input {
 public:
    // The files are those that the user named; "-" is standard input. The lines of the first file are
    // numbered from first_number.
    Input(const std::vector<std::string>& files, const Reading& reading, std::uint64_t first_number);

    // is_at_end returns whether every file has been read. After the end of a file, it opens the next one. On
    // standard error, it reports each file that cannot be opened.
    bool is_at_end();

    // is_ready returns whether read can return a chunk without reading from the file.
    [[nodiscard]] bool is_ready() const { return is_ready_; }

    // descriptor returns the descriptor that the next call to read will use.
    [[nodiscard]] int descriptor() const { return file_.number(); }

    // read reads from the file once, waiting if necessary, and returns the entries that are now complete.
    std::optional<Chunk> read();

    [[nodiscard]] std::uint64_t unreadable_files() const { return unreadable_files_; }

 private:
    bool open_file();
    void complain(int error);
    bool fill();
    bool begin_file();
    std::optional<Chunk> next_chunk();
    Chunk make_chunk();
    void end_file();
    void drop(std::size_t size);
    bool take_preamble(std::size_t size);
    [[nodiscard]] std::string_view rest() const { return {buffer_.data() + taken_, size_ - taken_}; }

    const std::vector<std::string>* files_;
    const Reading* reading_;
    std::uint64_t first_number_;
    std::size_t next_ = 0;  // index of the file after the open one
    Descriptor file_;
    FileFormat format_ = FileFormat::kWords;
    std::unique_ptr<Cutter> cutter_;  // not set until the first bytes of the file have been examined
    std::string preamble_;
    std::string preamble_problem_;
    std::string problem_;  // the problem at the current position
    bool ends_file_ = false;
    std::uint64_t line_ = 1;
    std::uint64_t problem_line_ = 1;
    bool starts_file_ = true;
    bool is_file_read_ = false;
    bool is_ready_ = false;
    std::vector<char> buffer_;
    std::size_t taken_ = 0;  // bytes at the front that were returned or dropped
    std::size_t size_ = 0;
    std::uint64_t unreadable_files_ = 0;
};

}  // namespace ostrel::tool

#endif
