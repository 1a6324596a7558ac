// A chunk of input and the worker that judges it, as the supervisor sees them.
#ifndef OSTREL_TOOLS_BATCH_SLOT_H
#define OSTREL_TOOLS_BATCH_SLOT_H

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "batch/arena.h"
#include "batch/worker.h"
#include "read/cases.h"
#include "read/input.h"
#include "summary/summary.h"
#include "system/process.h"

namespace ostrel::tool {

using Clock = std::chrono::steady_clock;

// Rules are the settings that apply to every record of a batch.
struct Rules {
    Style style;
    Reading reading;
    double limit = 2;  // seconds that a call may take
    std::vector<std::string> files;
    std::uint64_t start_line = 1;    // line of the first file at which the batch starts
    std::uint64_t first_number = 1;  // number of the first file's first line
};

struct Taken {
    int error = 0;                // errno if some results could not be written
    std::uint64_t line = 0;       // the line after the last one whose results were written
    bool is_within_line = false;  // only some of the results of this line were written
};

class Slot {
 public:
    explicit Slot(const Rules& rules);
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;
    ~Slot();

    // judge starts judging a chunk.
    void judge(const Chunk& chunk);

    // look checks whether the worker has answered, has ended, or is making no progress.
    void look();

    [[nodiscard]] bool is_running() const { return is_running_; }

    // answers returns the descriptor to wait for while the slot is running.
    [[nodiscard]] int answers() const { return answers_.reading.number(); }

    void ask_to_stop() { arena_->ask_to_stop(); }

    // take writes the results obtained so far and counts those that could be written. The worker then
    // continues with the rest of the chunk, unless it was asked to stop.
    Taken take(int descriptor, Summary& summary);

    // judged returns the worker's progress, which counts only the cases whose results have not been taken.
    [[nodiscard]] const Progress& judged() const { return arena_->progress(); }
    [[nodiscard]] std::size_t left() const { return arena_->rest_of_input().size(); }

    [[nodiscard]] std::size_t file() const { return arena_->file; }

    [[nodiscard]] bool is_done() const { return !is_running_ && arena_->rest_of_input().empty(); }

 private:
    void start_worker();
    void stop_worker();
    void start_round();
    void conclude(Verdict verdict, std::string problem);
    std::size_t write_out(int descriptor, int& error);
    std::uint32_t count(std::size_t written, Summary& summary);

    const Rules* rules_;
    std::unique_ptr<Arena, Unmap> arena_;
    Cases cases_;       // reads the record that ended the worker
    pid_t worker_ = 0;  // 0 if there is no worker
    Pipe orders_;
    Pipe answers_;
    bool is_running_ = false;
    std::uint64_t commits_seen_ = 0;
    Clock::time_point seen_at_;
    std::string heading_;     // precedes the worker's output
    std::string conclusion_;  // follows the worker's output, with the verdict on the case that ended it
};

}  // namespace ostrel::tool

#endif
