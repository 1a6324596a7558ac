// Signals that ask a batch to stop.
#ifndef OSTREL_TOOLS_SYSTEM_STOP_SIGNALS_H
#define OSTREL_TOOLS_SYSTEM_STOP_SIGNALS_H

#include <csignal>

#include "system/process.h"

namespace ostrel::tool {

// StopSignals handles SIGINT and SIGTERM during its lifetime, unless they were ignored before. A second
// signal of the same kind ends the process. Only one StopSignals may exist at a time.
class StopSignals {
 public:
    StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;
    ~StopSignals();

    // descriptor returns a descriptor that is readable after a signal has arrived.
    [[nodiscard]] int descriptor() const { return pipe_.reading.number(); }

    // number returns the number of the first signal that arrived, or 0.
    [[nodiscard]] static int number();

 private:
    Pipe pipe_;
    struct sigaction interrupt_ = {};
    struct sigaction terminate_ = {};
};

}  // namespace ostrel::tool

#endif
