// CallResult: everything that a call leaves.
#ifndef OSTREL_VECTORS_CALL_RESULT_H
#define OSTREL_VECTORS_CALL_RESULT_H

#include <iosfwd>
#include <string>
#include <vector>

#include "calling/caller.h"
#include "calling/capture.h"

namespace ostrel::vectors {

// CallResult is the code, the output and the written arguments of a call. Two results print readably when they
// differ.
struct CallResult {
    int code = 0;
    std::string out;
    std::string err;
    bool flushed = true;
    std::vector<catalogue::Value> after;

    bool operator==(const CallResult&) const = default;
};

void PrintTo(const CallResult& result, std::ostream* stream);

// values_of returns what is in the memory of a call.
std::vector<catalogue::Value> values_of(const std::vector<calling::Written>& written);

// actual_result calls what is loaded.
CallResult actual_result(calling::Caller& caller, calling::Capture& capture);

// shown quotes a text as JSON does; of a long one only the ends are shown.
std::string shown(const std::string& text);

}  // namespace ostrel::vectors

#endif
