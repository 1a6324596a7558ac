// Trial: one call of the library, compared with what the description says of it.
#ifndef OSTREL_ORACLE_TRIAL_H
#define OSTREL_ORACLE_TRIAL_H

#include <cstddef>
#include <string>
#include <vector>

#include "calling/caller.h"
#include "calling/capture.h"
#include "rules/evaluate.h"

namespace ostrel::oracle {

class Trial {
 public:
    // agrees makes the call twice, with every argument ending and with every argument beginning at an unreadable page,
    // and compares the code, what was printed and flushed, and what was written. The call must not be an outside one.
    bool agrees(const catalogue::Function& function, const std::vector<rules::Value>& values,
                const rules::Answer& expected);

    // difference tells of the last call that differed: the function's name, the row for vectors/ that the description
    // would have, and the same row with what the library answered.
    [[nodiscard]] const std::string& difference() const { return difference_; }

    // calls is how often the library was called.
    [[nodiscard]] std::size_t calls() const { return calls_; }

 private:
    bool agrees_at(calling::Caller& caller, const catalogue::Function& function,
                   const std::vector<rules::Value>& values, const rules::Answer& expected);

    calling::Caller at_end_{calling::Edge::kEnd};
    calling::Caller at_begin_{calling::Edge::kBegin};
    calling::Capture capture_;
    std::string difference_;
    std::size_t calls_ = 0;
};

// shown_call is a call as a row of vectors/ has it, without what it promises.
std::string shown_call(const catalogue::Function& function, const std::vector<rules::Value>& values);

}  // namespace ostrel::oracle

#endif
