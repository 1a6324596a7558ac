// Escapes bytes, so that a terminal can print them and a reader can distinguish them.
#ifndef OSTREL_TOOLS_WRITE_SHOW_H
#define OSTREL_TOOLS_WRITE_SHOW_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "calling/caller.h"
#include "rules/reason_json.h"

namespace ostrel::tool {

// append_escaped appends bytes, with control bytes, DEL and bytes from 0x80 up as \xNN. If there are more
// than limit bytes, it omits the rest and appends the size.
void append_escaped(std::string& out, std::string_view bytes, std::size_t limit);

// append_word appends a string as a word that Words reads as the same string, unless it is cut.
void append_word(std::string& out, std::string_view text, std::size_t limit);

// append_value appends an argument as words.
void append_value(std::string& out, const catalogue::Value& value, std::size_t limit);

// counted returns a number with its noun, in the singular or the plural.
std::string counted(std::uint64_t number, std::string_view one, std::string_view many);

using rules::append_json_text;

}  // namespace ostrel::tool

#endif
