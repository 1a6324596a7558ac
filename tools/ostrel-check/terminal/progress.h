// Shows the progress of a batch to a user who is waiting at a terminal.
#ifndef OSTREL_TOOLS_TERMINAL_PROGRESS_H
#define OSTREL_TOOLS_TERMINAL_PROGRESS_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ostrel::tool {

struct Advance {
    std::uint64_t cases = 0;
    std::uint64_t refused = 0;
    std::uint64_t bytes = 0;  // bytes of the input
};

// size_of returns the number of bytes in the files, or nothing if one of them is not a regular file.
std::optional<std::uint64_t> size_of(const std::vector<std::string>& files);

// describe returns the progress as a line of at most 80 columns. The estimate of the remaining time
// disregards the skipped bytes, which were not judged.
std::string describe(const Advance& advance, double seconds, std::optional<std::uint64_t> size,
                     std::uint64_t skipped);

// Meter shows the progress on a single line of standard error, if that is a terminal and the batch has run
// for more than a second. Call clear before writing anything else.
class Meter {
 public:
    explicit Meter(std::optional<std::uint64_t> size);
    Meter(const Meter&) = delete;
    Meter& operator=(const Meter&) = delete;
    ~Meter() { clear(); }

    void skip(std::uint64_t bytes) { skipped_ += bytes; }
    void show(const Advance& advance);
    void clear();

    // clear_keys erases the characters that the terminal echoed for the interrupt keys.
    void clear_keys() const;

    [[nodiscard]] bool is_due() const;
    [[nodiscard]] bool is_wanted() const { return is_wanted_; }

 private:
    using Clock = std::chrono::steady_clock;

    bool is_wanted_;
    bool is_shown_ = false;
    std::optional<std::uint64_t> size_;
    std::uint64_t skipped_ = 0;
    Clock::time_point begin_ = Clock::now();
    Clock::time_point shown_at_ = begin_;
};

}  // namespace ostrel::tool

#endif
