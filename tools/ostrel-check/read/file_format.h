// The format of a file, by its name and by its first bytes.
#ifndef OSTREL_TOOLS_READ_FILE_FORMAT_H
#define OSTREL_TOOLS_READ_FILE_FORMAT_H

#include <optional>
#include <string>
#include <string_view>

#include "read/reading.h"

namespace ostrel::tool {

// format_of_name knows the usual endings.
std::optional<FileFormat> format_of_name(std::string_view name);

// format_of_bytes looks at the first line, or at as much of it as there is. Lines of JSON are words, unless only JSON may
// be in them.
FileFormat format_of_bytes(std::string_view front, const Reading& reading);

// why_not_text says what a file is that is not text in UTF-8, and what to do; otherwise it is empty.
std::string_view why_not_text(std::string_view front);

}  // namespace ostrel::tool

#endif
