// Meter: how far a batch has come, for somebody who waits at a terminal.
#ifndef OSTREL_TOOLS_PROGRESS_H
#define OSTREL_TOOLS_PROGRESS_H

#include <chrono>
#include <cstdint>

namespace ostrel::tool {

// Meter writes one line to standard error and over it again, if that is a terminal and the batch has taken
// longer than a second. The line goes away before anything else is written.
class Meter {
 public:
    Meter();
    Meter(const Meter&) = delete;
    Meter& operator=(const Meter&) = delete;
    ~Meter() { clear(); }

    void show(std::uint64_t cases);
    void clear();

    [[nodiscard]] bool is_wanted() const { return is_wanted_; }

 private:
    using Clock = std::chrono::steady_clock;

    bool is_wanted_;
    bool is_shown_ = false;
    Clock::time_point begin_ = Clock::now();
    Clock::time_point shown_at_ = begin_;
};

}  // namespace ostrel::tool

#endif
