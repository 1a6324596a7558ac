// The wireless driver's tool, wlctl, which the check of the channel runs.
#ifndef OSTREL_TOOLS_DRIVER_H
#define OSTREL_TOOLS_DRIVER_H

#include <string>
#include <string_view>

#include "catalogue/catalogue.h"
#include "process.h"

namespace ostrel::tool {

// StandIn answers in the driver's place for as long as it lives: a wlctl of its own stands first on the path and
// lists the channels given.
class StandIn {
 public:
    explicit StandIn(std::string_view channels);
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    ~StandIn();

 private:
    std::string folder_;
};

// Turn waits until no other process of this program runs a check that asks the driver: such a check uses a file of
// one fixed name. For any other check it does nothing.
class Turn {
 public:
    explicit Turn(const catalogue::Function& function);

 private:
    Descriptor lock_;
};

}  // namespace ostrel::tool

#endif
