// The format of a file, by its name and by its first bytes.
#ifndef OSTREL_TOOLS_READ_FILE_FORMAT_H
#define OSTREL_TOOLS_READ_FILE_FORMAT_H

#include <optional>
#include <string>
#include <string_view>

#include "read/reading.h"

namespace ostrel::tool {

// format_of_name recognises the usual extensions.
std::optional<FileFormat> format_of_name(std::string_view name);

// format_of_bytes examines the first line, or as much of it as there is. Lines of JSON have the format of words,
// unless they may contain only JSON.
FileFormat format_of_bytes(std::string_view front, const Reading& reading);

// why_not_text describes a file that is not text in UTF-8, and what to do about it. Otherwise it returns an empty
// text.
std::string_view why_not_text(std::string_view front);

}  // namespace ostrel::tool

#endif
