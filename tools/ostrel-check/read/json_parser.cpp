#include "read/json_parser.h"

#include <rapidjson/error/en.h>

#include <algorithm>
#include <stdexcept>

#include "read/encoding.h"
#include "show.h"

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

void require_json(std::string_view text)
{
    const std::size_t valid = valid_utf8(text);
    if (valid < text.size()) {
        std::string byte;
        append_escaped(byte, text.substr(valid, 1), 1);
        throw std::invalid_argument("broken JSON: byte " + std::to_string(valid + 1) + " is " + byte +
                                    ", which is not UTF-8; any bytes can be given as {\"base64\": \"...\"}");
    }
    const std::size_t nul = text.find('\0');
    if (nul != std::string_view::npos) {
        throw std::invalid_argument("broken JSON: byte " + std::to_string(nul + 1) + " is NUL");
    }
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
