// The wireless driver's tool, wlctl, which the check of the channel runs.
#ifndef OSTREL_TOOLS_DRIVER_H
#define OSTREL_TOOLS_DRIVER_H

#include <functional>
#include <string>
#include <string_view>

#include "catalogue/catalogue.h"
#include "process.h"

namespace ostrel::tool {

// StandIn answers in the driver's place for as long as it lives: a wlctl of its own stands first on the path
// and lists the channels given. Throws std::invalid_argument for a list that holds anything but numbers and
// blanks, and std::system_error where the check could not write the driver's answer.
class StandIn {
 public:
    explicit StandIn(std::string_view channels);
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    ~StandIn();

 private:
    std::string folder_;
};

// Turn waits until no other process runs a check that asks the driver: such a check uses a file of one fixed
// name. For any other check it does nothing. still_waiting is called again and again.
class Turn {
 public:
    explicit Turn(
        const catalogue::Function& function, const std::function<void()>& still_waiting = [] {});

 private:
    Descriptor lock_;
};

// clean_up_after removes what a check leaves behind that was stopped while it asked the driver.
void clean_up_after(const catalogue::Function& function);

}  // namespace ostrel::tool

#endif
