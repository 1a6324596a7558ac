// Reason: why a check refused, or ended its process, by the description of the check.
#ifndef OSTREL_TOOLS_REASON_H
#define OSTREL_TOOLS_REASON_H

#include <string>
#include <vector>

#include "json_writer.h"
#include "rules/build.h"
#include "rules/reason.h"
#include "verdict.h"

namespace ostrel::tool {

// gateway is the build that this program belongs to. It may be told what the wireless driver lists.
rules::Build& gateway();

struct Why {
    std::string text;  // in a sentence; empty: the reason is not known
    rules::Reason reason;
    std::vector<rules::Reason> remarks;  // of the steps that printed and went on, in order
};

// why evaluates the description with the values of a result that is neither an acceptance nor an answer.
Why why(const Result& result);

// write_reasons adds the members "reason" and "remarks" to an object.
void write_reasons(JsonWriter& json, const Result& result, Encoding encoding);

}  // namespace ostrel::tool

#endif
