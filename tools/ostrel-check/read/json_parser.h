// JSON as a sequence of events, from RapidJSON.
#ifndef OSTREL_TOOLS_READ_JSON_PARSER_H
#define OSTREL_TOOLS_READ_JSON_PARSER_H

#include <rapidjson/reader.h>
#include <rapidjson/stream.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace ostrel::tool {

// kDeepest limits how deeply JSON may be nested. The parser recurses for each level, so a handler must return false
// beyond it.
inline constexpr std::size_t kDeepest = 32;

// TokenStream hides all but the first of several consecutive digits from the parser, unless the first is 0.
// The parser computes the value of each number, although only the token is needed, and refuses a number that
// no double can represent. If digits are hidden, the value is small, but the parser finds the same end and
// the same faults of the token. TokenStream also skips the beginning of a string up to the first escape,
// because decoding does not move those bytes.
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
    // PutBegin is called at the beginning of a string, after its quotation mark, and at the beginning of a number.
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

// copyOptimization makes the parser work on a copy of the stream, which the compiler can keep in registers.
template <>
struct rapidjson::StreamTraits<ostrel::tool::TokenStream> {
    enum { copyOptimization = 1 };  // NOLINT(readability-identifier-naming)
};

namespace ostrel::tool {

// JsonParser parses a copy of the text and decodes strings within the copy, so the strings that a handler
// receives are valid until the next call of parse. Numbers are passed as they are written.
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

    // offset returns the parser's position. While a handler is called for the beginning or the end of an
    // array or an object, that is the position after the bracket.
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

// ByteKinds records which kinds of bytes occur in JSON text.
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

// append_compact appends JSON without the blanks and line ends outside strings.
void append_compact(std::string& out, std::string_view json);

}  // namespace ostrel::tool

#endif
