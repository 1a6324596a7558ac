// Settings for the summary and the exit code of a batch.
#ifndef OSTREL_TOOLS_SUMMARY_CLOSING_H
#define OSTREL_TOOLS_SUMMARY_CLOSING_H

#include <string>

#include "summary/summary.h"

namespace ostrel::tool {

struct Closing {
    bool has_summary = true;
    bool as_json = false;
    std::string file;  // the summary's file; empty if the summary follows the results
    bool exits_with_zero = false;
};

// write_summary writes to the summary's file, or else after the results if the summary may follow them, or
// else to standard error. The summary includes rows by check, parameter and reason if with_rows is set. If
// this fails, it reports the error on standard error and returns false.
bool write_summary(const Closing& closing, const Summary& summary, bool with_rows, bool follows_results);

}  // namespace ostrel::tool

#endif
