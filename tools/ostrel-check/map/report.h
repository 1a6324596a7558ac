// A comparison as a table, as JSON, or as a page in Markdown.
#ifndef OSTREL_TOOLS_MAP_REPORT_H
#define OSTREL_TOOLS_MAP_REPORT_H

#include <string>
#include <vector>

#include "map/compare.h"

namespace ostrel::tool {

enum class ReportFormat { kText, kJson, kMarkdown };

// report_of compares all entries of the map in the file with its data model, and returns the report.
std::string report_of(const std::string& file, ReportFormat format);

}  // namespace ostrel::tool

#endif
