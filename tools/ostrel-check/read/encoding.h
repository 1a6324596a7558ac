// Encoding: how the characters of a text become bytes of a value, and bytes become characters again.
#ifndef OSTREL_TOOLS_READ_ENCODING_H
#define OSTREL_TOOLS_READ_ENCODING_H

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::tool {

// Files are in UTF-8, whatever the encoding of the values is.
enum class Encoding { kUtf8, kLatin1 };

// ascii_size returns the size of the longest beginning that is ASCII, and valid_utf8 of the one that is UTF-8.
// A surrogate is not valid.
std::size_t ascii_size(std::string_view text);
std::size_t valid_utf8(std::string_view text);

inline bool is_ascii(std::string_view text) { return ascii_size(text) == text.size(); }

// encode appends the bytes of a text that is in UTF-8; there are never more than the text has. With UTF-8 a byte
// that is not valid stays as it is. Throws std::invalid_argument with a message for the user: with Latin-1, for a
// character that it lacks, and for a byte that is not UTF-8.
void encode(std::string& bytes, std::string_view text, Encoding encoding);

// utf8_of is the reverse. With UTF-8 it returns the bytes, which may not be valid.
std::string utf8_of(std::string_view bytes, Encoding encoding);

// decode_base64 appends the bytes. Throws std::invalid_argument with a message for the user.
void decode_base64(std::string& bytes, std::string_view text);

std::string base64_of(std::string_view bytes);

}  // namespace ostrel::tool

#endif
