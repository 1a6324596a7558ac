// Cases, which are calls in the notation of the conformance vectors.
#ifndef OSTREL_CALLING_CASE_H
#define OSTREL_CALLING_CASE_H

#include <nlohmann/json_fwd.hpp>
#include <vector>

#include "catalogue/catalogue.h"

namespace ostrel::calling {

struct Case {
    const catalogue::Function* function = nullptr;
    std::vector<catalogue::Value> values;
};

// case_from_json reads {"check": name, "args": [...]} and ignores other members. If the row is not a valid
// case, it throws std::invalid_argument with a message for the user.
Case case_from_json(const nlohmann::json& row);

}  // namespace ostrel::calling

#endif
