// Encoding: converts between the characters of a text and the bytes of a value.
#ifndef OSTREL_TOOLS_READ_ENCODING_H
#define OSTREL_TOOLS_READ_ENCODING_H

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::tool {

// Encoding is that of the values. Files are always in UTF-8.
enum class Encoding { kUtf8, kLatin1 };

// ascii_size returns the size of the longest ASCII prefix, and valid_utf8 that of the longest UTF-8 prefix. A
// surrogate is not valid.
std::size_t ascii_size(std::string_view text);
std::size_t valid_utf8(std::string_view text);

inline bool is_ascii(std::string_view text) { return ascii_size(text) == text.size(); }

// encode appends the bytes of a text in UTF-8, never more than the text has. With UTF-8, invalid bytes are unchanged.
// With Latin-1, it throws std::invalid_argument, with a message for the user, for a character that Latin-1 lacks and
// for a byte that is not UTF-8.
void encode(std::string& bytes, std::string_view text, Encoding encoding);

// utf8_of is the reverse. With UTF-8, it returns the bytes unchanged, even if they are not valid.
std::string utf8_of(std::string_view bytes, Encoding encoding);

// decode_base64 appends the bytes. Throws std::invalid_argument with a message for the user.
void decode_base64(std::string& bytes, std::string_view text);

std::string base64_of(std::string_view bytes);

}  // namespace ostrel::tool

#endif
