// Parses JSON into a sequence of events, with RapidJSON.
#ifndef OSTREL_TOOLS_READ_JSON_PARSER_H
#define OSTREL_TOOLS_READ_JSON_PARSER_H

#include <rapidjson/reader.h>
#include <rapidjson/stream.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "read/block.h"

namespace ostrel::tool {

// kDeepest limits how deeply JSON may be nested. The parser recurses for each level, so a handler must return
// false beyond this limit.
inline constexpr std::size_t kDeepest = 32;

// plain_bytes returns the number of bytes at the front of a block that JSON strings contain without escapes.
inline std::size_t plain_bytes(const Block& block)
{
    const auto halves = std::bit_cast<std::array<std::uint64_t, 2>>(
        static_cast<Block>((block < ' ') | (block == '"') | (block == '\\')));
    const auto unmarked = [](std::uint64_t marks) {
        const bool is_little = std::endian::native == std::endian::little;
        return static_cast<std::size_t>(is_little ? std::countr_zero(marks) : std::countl_zero(marks)) / 8;
    };
    return halves[0] != 0 ? unmarked(halves[0]) : sizeof halves[0] + unmarked(halves[1]);
}

// plain_size returns the size of the longest such prefix of a text.
inline std::size_t plain_size(std::string_view text)
{
    std::size_t size = 0;
    Block block;
    for (; size + sizeof block <= text.size(); size += sizeof block) {
        std::memcpy(&block, text.data() + size, sizeof block);
        if (const std::size_t plain = plain_bytes(block); plain < sizeof block) return size + plain;
    }
    if (size == text.size()) return size;
    block = Block{};
    std::memcpy(&block, text.data() + size, text.size() - size);
    return size + plain_bytes(block);
}

// TokenStream hides all but the first of several consecutive digits from the parser, unless the first is 0.
// The parser computes the value of each number, although only the token is needed, and refuses a number that
// no double can represent. While digits are hidden, the value stays small, but the parser still finds the end
// of the token and any fault in it. TokenStream also skips the part of a string before the first escape,
// because decoding does not move those bytes.
class TokenStream : public rapidjson::InsituStringStream {
 public:
    TokenStream(char* text, std::size_t size) : GenericInsituStringStream(text), end_(text + size) {}

    // NOLINTBEGIN(bugprone-derived-method-shadowing-base-method)
    char Take()
    {
        const char taken = *src_++;
        const bool is_in_string = dst_ != nullptr;
        if (!is_in_string && taken >= '1' && taken <= '9') {
            char* at = src_;
            while (*at >= '0' && *at <= '9') ++at;
            src_ = at;
        }
        return taken;
    }
    // PutBegin is called at the beginning of a number, and after the quotation mark that begins a string.
    char* PutBegin()
    {
        char* const begin = GenericInsituStringStream::PutBegin();
        const bool is_string = begin != head_ && begin[-1] == '"';
        if (!is_string) return begin;
        src_ = dst_ = begin + plain_size({begin, end_});
        return begin;
    }
    std::size_t PutEnd(char* begin)
    {
        const std::size_t size = GenericInsituStringStream::PutEnd(begin);
        dst_ = nullptr;
        return size;
    }
    // NOLINTEND(bugprone-derived-method-shadowing-base-method)

 private:
    const char* end_;
};

}  // namespace ostrel::tool

namespace rapidjson {

// copyOptimization makes the parser work on a copy of the stream, which the compiler can keep in registers.
template <>
struct StreamTraits<ostrel::tool::TokenStream> {
    enum { copyOptimization = 1 };  // NOLINT(readability-identifier-naming)
};

// RapidJSON's own version is not inlined, and copies the stream for what is usually one space or none.
template <>
inline void SkipWhitespace(ostrel::tool::TokenStream& is)
{
    const auto is_blank = [](char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; };
    while (is_blank(*is.src_)) ++is.src_;
}

}  // namespace rapidjson

namespace ostrel::tool {

// JsonParser parses a copy of the text and decodes strings within the copy, so the strings that a handler
// receives are valid until the next call to parse. Numbers are passed as they are written.
class JsonParser {
 public:
    template <typename Handler>
    rapidjson::ParseResult parse(std::string_view text, Handler& handler)
    {
        copy_.assign(text);
        TokenStream stream(copy_.data(), copy_.size());
        stream_ = &stream;
        rapidjson::Reader reader;
        return reader.Parse<rapidjson::kParseInsituFlag | rapidjson::kParseNumbersAsStringsFlag>(stream,
                                                                                                 handler);
    }

    // offset is after the bracket while a handler is called for the beginning or end of an array or object.
    [[nodiscard]] std::size_t offset() const { return stream_->Tell(); }

    // offset_of returns the position in the text of a number or a string that a handler received. A string's
    // position is after its opening quotation mark.
    [[nodiscard]] std::size_t offset_of(const char* told) const
    {
        return static_cast<std::size_t>(told - copy_.data());
    }

 private:
    std::string copy_;
    TokenStream* stream_ = nullptr;
};

// describe returns a message about a JSON error, for the user.
std::string describe(rapidjson::ParseErrorCode error);

struct ByteKinds {
    bool has_controls = false;  // below 0x20
    bool has_backslashes = false;
    bool has_high_bytes = false;
};

ByteKinds kinds_in(std::string_view text);

// require_json throws std::invalid_argument, with a message for the user, if the text contains a NUL byte or
// invalid UTF-8, which JSON cannot contain. Otherwise, it returns which kinds of bytes occur.
ByteKinds require_json(std::string_view text);

// end_of_string returns the position after the JSON string that begins at a quotation mark, or the end of the
// text if the string is not closed.
std::size_t end_of_string(std::string_view text, std::size_t at);

// append_compact appends JSON without the blanks and line endings outside strings.
void append_compact(std::string& out, std::string_view json);

}  // namespace ostrel::tool

#endif
