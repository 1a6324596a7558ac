// Bytes shown so that a terminal can print them and a reader can tell them apart.
#ifndef OSTREL_TOOLS_WRITE_SHOW_H
#define OSTREL_TOOLS_WRITE_SHOW_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "calling/caller.h"
#include "rules/reason_json.h"

namespace ostrel::tool {

// append_escaped shows control bytes, DEL and bytes from 0x80 as \xNN. Of a text longer than limit the rest
// is only counted.
void append_escaped(std::string& out, std::string_view bytes, std::size_t limit);

// append_word shows a text as a word that Words reads as that text again, as long as it is not cut.
void append_word(std::string& out, std::string_view text, std::size_t limit);

// append_value shows an argument as words.
void append_value(std::string& out, const catalogue::Value& value, std::size_t limit);

// counted is a number with its noun.
std::string counted(std::uint64_t number, std::string_view one, std::string_view many);

using rules::append_json_text;

}  // namespace ostrel::tool

#endif
