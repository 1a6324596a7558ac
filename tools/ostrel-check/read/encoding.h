// Encoding: how the characters of a text become bytes of a value, and bytes become characters again.
#ifndef OSTREL_TOOLS_READ_ENCODING_H
#define OSTREL_TOOLS_READ_ENCODING_H

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::tool {

// Files are in UTF-8, whatever the encoding of the values is.
enum class Encoding { kUtf8, kLatin1 };

// valid_utf8 returns the size of the longest valid beginning of a text. A surrogate is not valid.
std::size_t valid_utf8(std::string_view text);

// encode appends the bytes of a text that is in UTF-8. Throws std::invalid_argument, with a message for the user,
// for U+0000, a surrogate, and a character that the encoding lacks; and with Latin-1, for a byte that is not UTF-8.
// With UTF-8, such a byte stays as it is.
void encode(std::string& bytes, std::string_view text, Encoding encoding);

// append_json_bytes writes bytes as a text of JSON, or as {"base64": "..."} where they do not decode.
void append_json_bytes(std::string& out, std::string_view bytes, Encoding encoding);

// decode_base64 appends the bytes. Throws std::invalid_argument with a message for the user.
void decode_base64(std::string& bytes, std::string_view text);

// append_base64 is the reverse.
void append_base64(std::string& out, std::string_view bytes);

}  // namespace ostrel::tool

#endif
