// Judges many cases in worker processes, and writes the results in the order of the input.
#ifndef OSTREL_TOOLS_BATCH_BATCH_H
#define OSTREL_TOOLS_BATCH_BATCH_H

#include "batch/slot.h"
#include "summary/closing.h"

namespace ostrel::tool {

// run_batch judges the records of the files and returns the exit code.
int run_batch(const Rules& rules, const Closing& closing, unsigned jobs);

}  // namespace ostrel::tool

#endif
