// The reason why a check refused, ended its process or did not return, according to its description.
#ifndef OSTREL_TOOLS_JUDGE_REASON_H
#define OSTREL_TOOLS_JUDGE_REASON_H

#include <string>
#include <vector>

#include "judge/driver.h"
#include "judge/verdict.h"
#include "rules/build.h"
#include "rules/reason.h"
#include "write/json_writer.h"

namespace ostrel::tool {

// gateway returns this program's build settings, in which the caller may set the driver's channels.
rules::Build& gateway();

// explain sets the reason if the check's description predicts the outcome.
void explain(Result& result);

// is_known_not_to_return returns whether, according to the description, a call does not return. For such a
// call, answer_at_once sets the verdict without calling the check.
bool is_known_not_to_return(const catalogue::Function& function, const std::vector<catalogue::Value>& values);
void answer_at_once(Result& result);

// asks_driver returns whether a call queries the wireless driver.
bool asks_driver(const catalogue::Function& function, const std::vector<catalogue::Value>& values);

// blame_driver sets the verdict and the reason for a case in which the driver returned no list.
void blame_driver(Result& result, std::string_view problem);

// explain_by_driver sets the reason for a refusal from the driver's answer during the call.
void explain_by_driver(Result& result, const Heard& heard);

// write_reasons adds the members "reason" and "remarks" to a JSON object.
void write_reasons(JsonWriter& json, const Result& result, Encoding encoding);

// explain_lack sets the reason why no call could be made for a record that is itself correct.
void explain_lack(Result& result, const Record& record);

}  // namespace ostrel::tool

#endif
