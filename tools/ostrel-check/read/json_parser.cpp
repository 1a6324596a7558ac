#include "read/json_parser.h"

#include <rapidjson/error/en.h>

#include <cstdint>
#include <cstring>
#include <stdexcept>

#include "read/encoding.h"
#include "write/show.h"

namespace ostrel::tool {

std::string describe(rapidjson::ParseErrorCode error)
{
    if (error == rapidjson::kParseErrorStringUnicodeSurrogateInvalid) {
        return "a text holds a lone surrogate, which is not a character";
    }
    std::string text = rapidjson::GetParseError_En(error);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

ByteKinds kinds_in(std::string_view text)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHighs = 0x80 * kOnes;
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    std::uint64_t backslash = 0;
    const auto look = [&](std::uint64_t eight) {
        // The subtraction borrows from the next byte only if the mark is already set.
        high |= eight;
        low |= (eight - 0x20 * kOnes) & ~eight;
        const std::uint64_t other = eight ^ ('\\' * kOnes);
        backslash |= (other - kOnes) & ~other;
    };
    std::uint64_t eight = 0;
    for (; text.size() >= sizeof eight; text.remove_prefix(sizeof eight)) {
        std::memcpy(&eight, text.data(), sizeof eight);
        look(eight);
    }
    eight = ' ' * kOnes;
    std::memcpy(&eight, text.data(), text.size());
    look(eight);
    return {(low & kHighs) != 0, (backslash & kHighs) != 0, (high & kHighs) != 0};
}

ByteKinds require_json(std::string_view text)
{
    const ByteKinds kinds = kinds_in(text);
    const std::size_t valid = kinds.has_high_bytes ? valid_utf8(text) : text.size();
    if (valid < text.size()) {
        std::string byte;
        append_escaped(byte, text.substr(valid, 1), 1);
        throw std::invalid_argument("invalid JSON: byte " + std::to_string(valid + 1) + " is " + byte +
                                    ", which is not UTF-8; any bytes can be given as {\"base64\": \"...\"}");
    }
    const std::size_t nul = kinds.has_controls ? text.find('\0') : std::string_view::npos;
    if (nul != std::string_view::npos) {
        throw std::invalid_argument("invalid JSON: byte " + std::to_string(nul + 1) + " is NUL");
    }
    return kinds;
}

std::size_t end_of_string(std::string_view text, std::size_t at)
{
    for (++at; at < text.size(); ++at) {
        if (text[at] == '"') return at + 1;
        if (text[at] == '\\') ++at;
    }
    return text.size();
}

void append_compact(std::string& out, std::string_view json)
{
    for (std::size_t at = 0; at < json.size();) {
        if (json[at] == '"') {
            const std::size_t end = end_of_string(json, at);
            out += json.substr(at, end - at);
            at = end;
            continue;
        }
        const char c = json[at++];
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r') out += c;
    }
}

}  // namespace ostrel::tool
