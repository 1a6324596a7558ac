// The wireless driver's tool, wlctl, which the channel check runs.
#ifndef OSTREL_TOOLS_JUDGE_DRIVER_H
#define OSTREL_TOOLS_JUDGE_DRIVER_H

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "system/process.h"

namespace ostrel::tool {

// StandIn puts its own wlctl, which lists the given channels, first on PATH during its lifetime. If the user
// cannot write to /var, where the driver's answer is stored, the process gets a private /var. The constructor
// throws std::invalid_argument if the list contains anything but numbers and blanks.
class StandIn {
 public:
    explicit StandIn(std::string_view channels);
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    ~StandIn();

    // problem returns the reason why StandIn cannot replace the driver, or an empty string if it can.
    [[nodiscard]] const std::string& problem() const { return problem_; }

 private:
    void make(std::string_view channels);

    std::string folder_;
    std::string problem_;
};

// Turn waits until no other process runs a check that queries the driver, because such checks use a file with
// a fixed name. It does nothing for other checks. While it waits, it calls still_waiting repeatedly.
class Turn {
 public:
    explicit Turn(
        const catalogue::Function& function, const std::function<void()>& still_waiting = [] {});

 private:
    Descriptor lock_;
};

// Heard is the driver's answer during a call.
struct Heard {
    std::vector<int> channels;
    std::string said;     // what the driver's tool and the shell wrote to standard error
    std::string problem;  // why there is no channel list; empty if there is one
};

// Listening records the driver's answers from its construction until heard() is called.
class Listening {
 public:
    Listening();
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
    ~Listening() { restore(); }

    Heard heard();

 private:
    void restore();

    Descriptor list_;  // the file with the driver's answer; kept open because the check unlinks it
    int list_error_ = 0;
    Descriptor said_;
    Descriptor standard_error_;
};

// clean_up_after removes the file that a check leaves behind if it is stopped while it queries the driver.
void clean_up_after(const catalogue::Function& function);

}  // namespace ostrel::tool

#endif
