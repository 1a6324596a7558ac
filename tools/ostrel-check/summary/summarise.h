// Adds up the output of batches that judged parts of one input.
#ifndef OSTREL_TOOLS_SUMMARY_SUMMARISE_H
#define OSTREL_TOOLS_SUMMARY_SUMMARISE_H

#include <string>
#include <vector>

#include "summary/summary.h"

namespace ostrel::tool {

// summarise reports on standard error what cannot be read, prints the sum and returns the exit code.
int summarise(const std::vector<std::string>& files, bool as_json);

// add_line adds the content of a line, which is either a summary with rows or a result, in JSON. For any
// other line, it adds nothing and throws std::invalid_argument with a message for the user.
void add_line(Summary& summary, const std::string& line);

}  // namespace ostrel::tool

#endif
