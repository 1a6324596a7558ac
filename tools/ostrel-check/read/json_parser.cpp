#include "read/json_parser.h"

#include <rapidjson/error/en.h>

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <stdexcept>

#include "read/encoding.h"
#include "write/show.h"

namespace ostrel::tool {

std::string describe(rapidjson::ParseErrorCode error)
{
    if (error == rapidjson::kParseErrorStringUnicodeSurrogateInvalid) {
        return "a string contains a lone surrogate, which is not a character";
    }
    std::string text = rapidjson::GetParseError_En(error);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

ByteKinds kinds_in(std::string_view text)
{
    Block controls{};
    Block backslashes{};
    Block high_bytes{};
    const auto look = [&](const Block& block) {
        controls |= static_cast<Block>(block < 0x20);
        backslashes |= static_cast<Block>(block == '\\');
        high_bytes |= block & 0x80;
    };
    Block block{};
    for (; text.size() >= sizeof block; text.remove_prefix(sizeof block)) {
        std::memcpy(&block, text.data(), sizeof block);
        look(block);
    }
    block = Block{} + static_cast<unsigned char>(' ');
    std::memcpy(&block, text.data(), text.size());
    look(block);
    const auto is_any = [](const Block& bytes) {
        const auto halves = std::bit_cast<std::array<std::uint64_t, 2>>(bytes);
        return (halves[0] | halves[1]) != 0;
    };
    return {is_any(controls), is_any(backslashes), is_any(high_bytes)};
}

ByteKinds require_json(std::string_view text)
{
    const ByteKinds kinds = kinds_in(text);
    const std::size_t valid = kinds.has_high_bytes ? valid_utf8(text) : text.size();
    if (valid < text.size()) {
        std::string byte;
        append_escaped(byte, text.substr(valid, 1), 1);
        throw std::invalid_argument("invalid JSON: byte " + std::to_string(valid + 1) + " is " + byte +
                                    ", which is not UTF-8; pass arbitrary bytes as {\"base64\": \"...\"}");
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
