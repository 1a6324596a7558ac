// Signals that ask a batch to stop.
#ifndef OSTREL_TOOLS_SYSTEM_STOP_SIGNALS_H
#define OSTREL_TOOLS_SYSTEM_STOP_SIGNALS_H

#include <csignal>

#include "system/process.h"

namespace ostrel::tool {

// StopSignals takes SIGINT and SIGTERM for as long as it lives, unless they were ignored before. The second of a kind
// ends the process as ever. One at a time.
class StopSignals {
 public:
    StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;
    ~StopSignals();

    // descriptor can be read from when a signal has come.
    [[nodiscard]] int descriptor() const { return pipe_.reading.number(); }

    // number is that of the first signal that came, or 0.
    [[nodiscard]] static int number();

 private:
    Pipe pipe_;
    struct sigaction interrupt_ = {};
    struct sigaction terminate_ = {};
};

}  // namespace ostrel::tool

#endif
