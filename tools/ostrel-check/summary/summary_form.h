// A summary as text for people, and as JSON for programs.
#ifndef OSTREL_TOOLS_SUMMARY_SUMMARY_FORM_H
#define OSTREL_TOOLS_SUMMARY_SUMMARY_FORM_H

#include <string>

#include "summary/summary.h"

namespace ostrel::tool {

// summary_text and summary_json show the outcomes for each family of checks and, if with_rows is set, for
// each row. The last line of the text shows the totals. The JSON is one line.
std::string summary_text(const Summary& summary, bool with_rows);
std::string summary_json(const Summary& summary, bool with_rows);

}  // namespace ostrel::tool

#endif
