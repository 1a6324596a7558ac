// JSON as a sequence of events, from RapidJSON.
#ifndef OSTREL_TOOLS_READ_JSON_PARSER_H
#define OSTREL_TOOLS_READ_JSON_PARSER_H

#include <rapidjson/reader.h>
#include <rapidjson/stream.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::tool {

// kDeepest is how deep JSON may be nested. The parser calls itself for each level, so a handler must return false
// beyond it.
inline constexpr std::size_t kDeepest = 32;

// TokenStream lets the parser see the first digit alone of digits in a row, unless it is 0. The parser computes the value
// of each number, although only its token is asked for, and refuses one that no double holds; of such a token it finds
// the same end and the same faults, and a small value. And of a string it sees what begins with the first escape: what is
// before that stays where it is.
class TokenStream : public rapidjson::InsituStringStream {
 public:
    explicit TokenStream(char* text) : GenericInsituStringStream(text) {}

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
    // PutBegin is called at the begin of a string, after its quotation mark, and at that of a number.
    char* PutBegin()
    {
        char* const begin = GenericInsituStringStream::PutBegin();
        const bool is_string = begin != head_ && begin[-1] == '"';
        if (!is_string) return begin;
        char* at = begin;
        while (*at != '"' && *at != '\\' && static_cast<unsigned char>(*at) >= 0x20) ++at;
        src_ = dst_ = at;
        return begin;
    }
    std::size_t PutEnd(char* begin)
    {
        const std::size_t size = GenericInsituStringStream::PutEnd(begin);
        dst_ = nullptr;
        return size;
    }
    // NOLINTEND(bugprone-derived-method-shadowing-base-method)
};

}  // namespace ostrel::tool

// The parser works with a copy of such a stream, which the compiler can keep in registers.
template <>
struct rapidjson::StreamTraits<ostrel::tool::TokenStream> {
    enum { copyOptimization = 1 };  // NOLINT(readability-identifier-naming)
};

namespace ostrel::tool {

// JsonParser parses a copy of a text, in which it decodes the strings, so that what a handler is told stays valid
// until the next text. Numbers come as the text has them.
class JsonParser {
 public:
    template <typename Handler>
    rapidjson::ParseResult parse(std::string_view text, Handler& handler)
    {
        copy_.assign(text);
        TokenStream stream(copy_.data());
        stream_ = &stream;
        rapidjson::Reader reader;
        return reader.Parse<rapidjson::kParseInsituFlag | rapidjson::kParseNumbersAsStringsFlag>(stream,
                                                                                                 handler);
    }

    // offset returns, while a handler is told of the begin or the end of an array or an object, how far the parser has
    // come: after the bracket.
    [[nodiscard]] std::size_t offset() const { return stream_->Tell(); }

    // offset_of returns where something is in the text that a handler was told of: a number, or a string after its
    // quotation mark.
    [[nodiscard]] std::size_t offset_of(const char* told) const
    {
        return static_cast<std::size_t>(told - copy_.data());
    }

 private:
    std::string copy_;
    TokenStream* stream_ = nullptr;
};

// describe says what is wrong with JSON, for the user.
std::string describe(rapidjson::ParseErrorCode error);

// ByteKinds says which kinds of bytes a text holds.
struct ByteKinds {
    bool has_controls = false;  // below 0x20
    bool has_backslashes = false;
    bool has_high_bytes = false;
};

ByteKinds kinds_in(std::string_view text);

// require_json throws std::invalid_argument, with a message for the user, for what no JSON holds: a NUL byte, and a
// byte that is not UTF-8. It returns the kinds of bytes.
ByteKinds require_json(std::string_view text);

// end_of_string returns where the string of JSON ends that begins at a quotation mark: after the closing one, or at the
// end of the text.
std::size_t end_of_string(std::string_view text, std::size_t at);

// append_compact appends JSON without the blanks and line ends that are outside of its strings.
void append_compact(std::string& out, std::string_view json);

}  // namespace ostrel::tool

#endif
