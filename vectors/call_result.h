// CallResult: all effects of a call.
#ifndef OSTREL_VECTORS_CALL_RESULT_H
#define OSTREL_VECTORS_CALL_RESULT_H

#include <iosfwd>
#include <string>
#include <vector>

#include "calling/caller.h"
#include "calling/capture.h"

namespace ostrel::vectors {

// CallResult is the code, the output and the written arguments of a call. A test that compares two results prints
// them readably if they differ.
struct CallResult {
    int code = 0;
    std::string out;
    std::string err;
    bool flushed = true;
    std::vector<catalogue::Value> after;

    bool operator==(const CallResult&) const = default;
};

void PrintTo(const CallResult& result, std::ostream* stream);

// values_of returns the values of the written arguments.
std::vector<catalogue::Value> values_of(const std::vector<calling::Written>& written);

// actual_result makes the loaded call and returns its result.
CallResult actual_result(calling::Caller& caller, calling::Capture& capture);

// shown returns a text quoted as in JSON. A long text is reduced to its ends.
std::string shown(const std::string& text);

}  // namespace ostrel::vectors

#endif
