// The forms of a summary: for people and for programs.
#ifndef OSTREL_TOOLS_SUMMARY_SUMMARY_FORM_H
#define OSTREL_TOOLS_SUMMARY_SUMMARY_FORM_H

#include <string>

#include "summary/summary.h"

namespace ostrel::tool {

// summary_text and summary_json say what became of the records: of each family of checks, with_rows of each row, and
// in the last line of the text of all. The JSON is one line.
std::string summary_text(const Summary& summary, bool with_rows);
std::string summary_json(const Summary& summary, bool with_rows);

}  // namespace ostrel::tool

#endif
