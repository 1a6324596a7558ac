// The wireless driver's tool, wlctl, which the check of the channel runs.
#ifndef OSTREL_TOOLS_JUDGE_DRIVER_H
#define OSTREL_TOOLS_JUDGE_DRIVER_H

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "system/process.h"

namespace ostrel::tool {

// StandIn replaces the driver during its lifetime: its own wlctl is the first on PATH and lists the channels. If the
// user may not write the driver's answer to /var, the process gets a private /var. Throws std::invalid_argument if
// the list contains anything but numbers and blanks.
class StandIn {
 public:
    explicit StandIn(std::string_view channels);
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    ~StandIn();

    // problem returns why StandIn cannot answer, or an empty text if it can.
    [[nodiscard]] const std::string& problem() const { return problem_; }

 private:
    void make(std::string_view channels);

    std::string folder_;
    std::string problem_;
};

// Turn waits until no other process runs a check that queries the driver, because such a check uses a file with a
// fixed name. For any other check it does nothing. It calls still_waiting repeatedly while it waits.
class Turn {
 public:
    explicit Turn(
        const catalogue::Function& function, const std::function<void()>& still_waiting = [] {});

 private:
    Descriptor lock_;
};

// Heard is the driver's answer in a call.
struct Heard {
    std::vector<int> channels;
    std::string said;     // standard error of the driver's tool or of the shell
    std::string problem;  // why there is no list; empty: there is one
};

// Listening records the driver's answers until heard(). A check is called in between.
class Listening {
 public:
    Listening();
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
    ~Listening() { restore(); }

    Heard heard();

 private:
    void restore();

    Descriptor list_;  // the file that the driver's answer is written to; the check removes its name
    int list_error_ = 0;
    Descriptor said_;
    Descriptor standard_error_;
};

// clean_up_after removes the files of a check that was stopped while it queried the driver.
void clean_up_after(const catalogue::Function& function);

}  // namespace ostrel::tool

#endif
