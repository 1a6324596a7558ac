// Recognises the format of a file by its name or its first bytes.
#ifndef OSTREL_TOOLS_READ_FILE_FORMAT_H
#define OSTREL_TOOLS_READ_FILE_FORMAT_H

#include <optional>
#include <string>
#include <string_view>

#include "read/reading.h"

namespace ostrel::tool {

std::optional<FileFormat> format_of_name(std::string_view name);

// format_of_bytes recognises a format by the first line, or as much of it as has been read. Without a map, it
// returns kWords for a line of JSON too, because lines of words and lines of JSON may be mixed.
FileFormat format_of_bytes(std::string_view front, const Reading& reading);

// why_not_text returns why a file is not UTF-8 text and what to do, or an empty string if it is.
std::string_view why_not_text(std::string_view front);

}  // namespace ostrel::tool

#endif
