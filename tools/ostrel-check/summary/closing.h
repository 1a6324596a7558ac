// Closing: how a batch is summed up and ended.
#ifndef OSTREL_TOOLS_SUMMARY_CLOSING_H
#define OSTREL_TOOLS_SUMMARY_CLOSING_H

#include <string>

#include "summary/summary.h"

namespace ostrel::tool {

struct Closing {
    bool has_summary = true;
    bool with_rows = false;  // by check, parameter and reason
    bool as_json = false;
    std::string file;  // for the summary; empty: it follows the results
    bool exits_with_zero = false;
};

// write_summary writes the summary where it belongs: to its file, else after the results where it may follow them, else
// to standard error. It says whether it could, and on standard error why not.
bool write_summary(const Closing& closing, const Summary& summary, bool follows_results);

}  // namespace ostrel::tool

#endif
