// Adds up the output of batches that judged parts of one input.
#ifndef OSTREL_TOOLS_SUMMARY_SUMMARISE_H
#define OSTREL_TOOLS_SUMMARY_SUMMARISE_H

#include <string>
#include <vector>

namespace ostrel::tool {

// summarise reports on standard error what cannot be read, prints the sum and returns the exit code.
int summarise(const std::vector<std::string>& files, bool as_json);

}  // namespace ostrel::tool

#endif
