// Escaped bytes, which a terminal can print and a reader can distinguish.
#ifndef OSTREL_TOOLS_WRITE_SHOW_H
#define OSTREL_TOOLS_WRITE_SHOW_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "calling/caller.h"
#include "rules/reason_json.h"

namespace ostrel::tool {

// append_escaped appends bytes, with control bytes, DEL and bytes from 0x80 as \xNN. It cuts a text after limit bytes
// and appends its size.
void append_escaped(std::string& out, std::string_view bytes, std::size_t limit);

// append_word appends a text as a word that Words reads as the same text, unless it is cut.
void append_word(std::string& out, std::string_view text, std::size_t limit);

// append_value appends an argument as words.
void append_value(std::string& out, const catalogue::Value& value, std::size_t limit);

// counted returns a number with its noun.
std::string counted(std::uint64_t number, std::string_view one, std::string_view many);

using rules::append_json_text;

}  // namespace ostrel::tool

#endif
