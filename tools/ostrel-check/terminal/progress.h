// Meter: how far a batch has come, for somebody who waits at a terminal.
#ifndef OSTREL_TOOLS_TERMINAL_PROGRESS_H
#define OSTREL_TOOLS_TERMINAL_PROGRESS_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ostrel::tool {

// Advance is how far a batch has come.
struct Advance {
    std::uint64_t cases = 0;
    std::uint64_t refused = 0;
    std::uint64_t bytes = 0;  // of the input
};

// size_of is the number of bytes in the files, or nothing where one of them is not a regular file.
std::optional<std::uint64_t> size_of(const std::vector<std::string>& files);

// describe says it in a line of at most 80 columns. The bytes skipped were not judged and took no time.
std::string describe(const Advance& advance, double seconds, std::optional<std::uint64_t> size,
                     std::uint64_t skipped);

// Meter writes one line to standard error and over it again, if that is a terminal and the batch has taken
// longer than a second. The line goes away before anything else is written.
class Meter {
 public:
    explicit Meter(std::optional<std::uint64_t> size);
    Meter(const Meter&) = delete;
    Meter& operator=(const Meter&) = delete;
    ~Meter() { clear(); }

    void skip(std::uint64_t bytes) { skipped_ += bytes; }
    void show(const Advance& advance);
    void clear();

    // clear_keys takes away what the terminal shows of the keys that interrupt.
    void clear_keys() const;

    // is_due tells that it is time to show something.
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
