// Compares calls to the library's functions with the descriptions of these functions.
#ifndef OSTREL_ORACLE_CALL_COMPARER_H
#define OSTREL_ORACLE_CALL_COMPARER_H

#include <cstddef>
#include <string>
#include <vector>

#include "calling/caller.h"
#include "calling/capture.h"
#include "rules/evaluate.h"

namespace ostrel::oracle {

class CallComparer {
 public:
    // agrees makes the call twice, with the arguments ending and then beginning next to an unreadable page.
    // It compares all effects, including how much was flushed. The contract must cover the call.
    bool agrees(const catalogue::Function& function, const std::vector<rules::Value>& values,
                const rules::Answer& expected);

    // difference describes the last call that differed. It contains the function's name and two rows in the
    // format of vectors/, one for what the description expects and one for what the library did.
    [[nodiscard]] const std::string& difference() const { return difference_; }

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

// shown_call returns a call as a row in the format of vectors/, without the result.
std::string shown_call(const catalogue::Function& function, const std::vector<rules::Value>& values);

}  // namespace ostrel::oracle

#endif
