// Input: the lines of several files, in chunks of bounded size.
#ifndef OSTREL_TOOLS_INPUT_H
#define OSTREL_TOOLS_INPUT_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "process.h"

namespace ostrel::tool {

// Chunk is some whole lines of one file; the last line of a file may lack its end. The text holds until the
// next read.
struct Chunk {
    std::size_t file = 0;    // which of the files
    std::uint64_t line = 1;  // the number of the first line
    std::string_view text;
    bool starts_file = false;
    bool is_too_long = false;  // stands for a line that is too long to be kept; the text is empty
    std::string heading;
};

class Input {
 public:
    // The files are named as the user names them; "-" is standard input.
    explicit Input(const std::vector<std::string>& files);

    // is_at_end tells that every file has been read. It opens the next file where one has ended, and says on
    // standard error what cannot be read.
    bool is_at_end();

    // descriptor is what the next read reads from.
    [[nodiscard]] int descriptor() const { return file_.number(); }

    // read reads once, waiting if need be, and gives what has become whole lines.
    std::optional<Chunk> read();

    [[nodiscard]] std::uint64_t unreadable_files() const { return unreadable_files_; }

 private:
    bool open_file();
    void complain(int error);
    std::optional<Chunk> read_end();
    Chunk take(std::size_t size);

    const std::vector<std::string>* files_;
    std::size_t next_ = 0;  // of the files: the one behind that which is open
    Descriptor file_;
    std::uint64_t line_ = 1;
    bool starts_file_ = true;
    bool is_skipping_ = false;  // the rest of a line that is too long
    std::vector<char> buffer_;
    std::size_t taken_ = 0;  // bytes at the front that were given out
    std::size_t size_ = 0;
    std::uint64_t unreadable_files_ = 0;
};

}  // namespace ostrel::tool

#endif
