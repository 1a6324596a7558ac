// All effects of a call.
#ifndef OSTREL_VECTORS_CALL_RESULT_H
#define OSTREL_VECTORS_CALL_RESULT_H

#include <iosfwd>
#include <string>
#include <vector>

#include "calling/caller.h"
#include "calling/capture.h"

namespace ostrel::vectors {

struct CallResult {
    int code = 0;
    std::string out;
    std::string err;
    bool flushed = true;
    std::vector<catalogue::Value> after;

    bool operator==(const CallResult&) const = default;
};

// PrintTo prints a result in readable form when a test fails.
void PrintTo(const CallResult& result, std::ostream* stream);

std::vector<catalogue::Value> values_of(const std::vector<calling::Written>& written);

// actual_result makes the loaded call and returns its result.
CallResult actual_result(calling::Caller& caller, calling::Capture& capture);

// shown returns a string quoted as in JSON. Only the beginning and the end of a long string are shown.
std::string shown(const std::string& text);

}  // namespace ostrel::vectors

#endif
