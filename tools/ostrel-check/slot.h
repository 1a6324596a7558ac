// Slot: a chunk of input and the worker that judges it, as the supervisor sees them.
#ifndef OSTREL_TOOLS_SLOT_H
#define OSTREL_TOOLS_SLOT_H

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "arena.h"
#include "input.h"
#include "process.h"
#include "read/cases.h"
#include "worker.h"

namespace ostrel::tool {

using Clock = std::chrono::steady_clock;

// Rules are what holds for every line of a batch.
struct Rules {
    Style style;
    Reading reading;
    double limit = 2;  // seconds that a call may take
    std::vector<std::string> files;
};

class Slot {
 public:
    explicit Slot(const Rules& rules);
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;
    ~Slot();

    // give has a chunk judged.
    void give(const Chunk& chunk);

    // look sees whether the worker has answered, has ended or stands still.
    void look();

    [[nodiscard]] bool is_running() const { return is_running_; }

    // answers is what to wait for while the slot is running.
    [[nodiscard]] int answers() const { return answers_.reading.number(); }

    // take writes out what is done and counts it; false: nobody reads any more. What is left of the chunk
    // goes on.
    bool take(int descriptor, Tally& tally, Counts& counts);

    // cases tells how many cases of the chunk have been judged and not been taken.
    [[nodiscard]] std::uint64_t cases() const { return arena_->progress().tally.sum(); }

    // is_done tells that the chunk has been judged and taken.
    [[nodiscard]] bool is_done() const { return !is_running_ && arena_->rest_of_input().empty(); }

 private:
    void start_worker();
    void stop_worker();
    void start_round();
    void conclude(Verdict verdict, std::string problem);

    const Rules* rules_;
    std::unique_ptr<Arena, Unmap> arena_;
    Cases cases_;       // for the record that ended the worker
    pid_t worker_ = 0;  // 0: none
    Pipe orders_;
    Pipe answers_;
    bool is_running_ = false;
    std::uint64_t commits_seen_ = 0;
    Clock::time_point seen_at_;
    std::string heading_;     // what precedes the worker's output
    std::string conclusion_;  // what follows the worker's output: the verdict on the case that ended it
};

}  // namespace ostrel::tool

#endif
