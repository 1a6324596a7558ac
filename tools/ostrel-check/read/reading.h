// The user's settings for reading the records of a batch.
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
    kWords,   // each line consists of words or is a JSON object
    kNdjson,  // each line is a JSON object
    kCsv,     // RFC 4180, with a header
    kTsv,     // the same, delimited by tabs
    kJson,    // an array of objects, or consecutive objects, over any number of lines
};

struct Reading {
    std::optional<FileFormat> format;  // if not set, a file's name determines it, or else its first bytes
    Encoding encoding = Encoding::kUtf8;
    std::optional<char> delimiter;  // the delimiter of CSV fields
    std::string check;  // the column or member that names the check, or the one check of all records
    std::vector<std::string> values;  // the columns or members that are the arguments, in order
    bool is_strict = false;           // a record with an unknown or duplicate member is malformed
    bool needs_check = true;          // a record without a check is malformed
    const Map* map = nullptr;         // if not NULL, the files are dumps, and the map selects the checks
    SplitGateways* split = nullptr;   // counts gateways whose rows are not adjacent
    std::string parameter;            // a dump's column with the path, or empty for the usual names
    std::string group;                // the column that identifies the gateway, or empty if each file is one
};

}  // namespace ostrel::tool

#endif
