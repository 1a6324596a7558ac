// Reading: the user's settings for reading the records of a batch.
#ifndef OSTREL_TOOLS_READ_READING_H
#define OSTREL_TOOLS_READ_READING_H

#include <optional>
#include <string>
#include <vector>

#include "read/encoding.h"

namespace ostrel::tool {

struct Map;
class SplitGateways;

enum class FileFormat {
    kWords,   // a line is words, or an object of JSON
    kNdjson,  // a line is an object of JSON
    kCsv,     // RFC 4180, with a header
    kTsv,     // the same with tabs
    kJson,    // an array of objects, or consecutive objects, over any number of lines
};

struct Reading {
    std::optional<FileFormat> format;  // none: each file's name decides, then its first bytes
    Encoding encoding = Encoding::kUtf8;
    std::optional<char> delimiter;  // of CSV
    std::string check;  // the column or member that names the check, or the one check of all records
    std::vector<std::string> values;  // the columns or members that are the arguments, in their order
    bool is_strict = false;           // unknown and duplicate members are malformed
    bool needs_check = true;          // a record without a check is malformed
    const Map* map = nullptr;         // the files are dumps of gateways, and this map selects the checks
    SplitGateways* split = nullptr;   // counts gateways whose rows are not adjacent
    std::string parameter;            // of rows of a dump: the column with the path; empty: a usual name
    std::string group;                // the column that identifies the gateway; empty: a file is a gateway
};

}  // namespace ostrel::tool

#endif
