// Converts between UTF-8 text and the bytes of a value.
#ifndef OSTREL_TOOLS_READ_ENCODING_H
#define OSTREL_TOOLS_READ_ENCODING_H

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::tool {

// Encoding is the encoding of values. Files are always in UTF-8.
enum class Encoding { kUtf8, kLatin1 };

// ascii_size returns the size of the longest prefix that is ASCII, and valid_utf8 the size of the longest
// prefix that is valid UTF-8. Surrogates are not valid.
std::size_t ascii_size(std::string_view text);
std::size_t valid_utf8(std::string_view text);

inline bool is_ascii(std::string_view text) { return ascii_size(text) == text.size(); }

// encode converts UTF-8 text to the encoding and appends the result, which never has more bytes than the
// text. With UTF-8, invalid bytes are unchanged. With Latin-1, it throws std::invalid_argument, with a
// message for the user, for a character that does not exist in Latin-1 and for an invalid byte.
void encode(std::string& bytes, std::string_view text, Encoding encoding);

// utf8_of converts back. With UTF-8, it returns the bytes unchanged, even if they are invalid.
std::string utf8_of(std::string_view bytes, Encoding encoding);

// decode_base64 appends the decoded bytes. Throws std::invalid_argument with a message for the user.
void decode_base64(std::string& bytes, std::string_view text);

std::string base64_of(std::string_view bytes);

}  // namespace ostrel::tool

#endif
