// Outcome: all that a call leaves behind.
#ifndef OSTREL_VECTORS_OUTCOME_H
#define OSTREL_VECTORS_OUTCOME_H

#include <iosfwd>
#include <string>
#include <vector>

#include "calling/caller.h"
#include "calling/capture.h"

namespace ostrel::vectors {

// Outcome is all that a call leaves behind. Two outcomes print readably when they differ.
struct Outcome {
    int code = 0;
    std::string out;
    std::string err;
    bool flushed = true;
    std::vector<catalogue::Value> after;

    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* stream);

// values_of returns what is in the memory of a call.
std::vector<catalogue::Value> values_of(const std::vector<calling::Written>& written);

// actual_outcome calls what is loaded.
Outcome actual_outcome(calling::Caller& caller, calling::Capture& capture);

// shown quotes a text as JSON does; of a long one only the ends are shown.
std::string shown(const std::string& text);

}  // namespace ostrel::vectors

#endif
