#include "write/show.h"

#include <algorithm>

#include "read/words.h"

namespace ostrel::tool {

using catalogue::Value;

namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

bool is_printable(char c) { return c >= ' ' && c <= '~'; }

void append_hexadecimal(std::string& out, std::string_view introduction, char c)
{
    const auto byte = static_cast<unsigned char>(c);
    out.append(introduction);
    out += kHexDigits[byte >> 4];
    out += kHexDigits[byte & 15];
}

void append_rest(std::string& out, std::size_t size, std::size_t limit)
{
    if (size > limit) out.append("... (").append(std::to_string(size)).append(" bytes)");
}

bool is_plain_word(std::string_view text)
{
    if (text.empty() || text.front() == '#' || text.front() == '{') return false;
    return std::ranges::all_of(
        text, [](char c) { return c > ' ' && c <= '~' && c != '\'' && c != '"' && c != '\\'; });
}

// is_like_null returns whether a word would be read as NULL or without its first "@".
bool is_like_null(std::string_view text)
{
    const std::size_t at_signs = std::min(text.find_first_not_of('@'), text.size());
    return at_signs > 0 && text.substr(at_signs - 1) == kNull;
}

}  // namespace

void append_escaped(std::string& out, std::string_view bytes, std::size_t limit)
{
    for (const char c : bytes.substr(0, limit)) {
        if (is_printable(c)) {
            out += c;
        } else {
            append_hexadecimal(out, "\\x", c);
        }
    }
    append_rest(out, bytes.size(), limit);
}

void append_word(std::string& out, std::string_view text, std::size_t limit)
{
    const std::string_view shown = text.substr(0, limit);
    if (is_like_null(text)) out += '@';
    if (is_plain_word(shown)) {
        out += shown;
    } else {
        out += '"';
        for (const char c : shown) {
            if (!is_printable(c)) {
                append_hexadecimal(out, "\\x", c);
                continue;
            }
            if (c == '"' || c == '\\') out += '\\';
            out += c;
        }
        out += '"';
    }
    append_rest(out, text.size(), limit);
}

void append_value(std::string& out, const Value& value, std::size_t limit)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        append_word(out, *text, limit);
    } else if (const auto* number = std::get_if<long long>(&value)) {
        out += std::to_string(*number);
    } else if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
        std::string_view between;
        for (const std::string& block : *texts) {
            out += between;
            append_word(out, block, limit);
            between = " ";
        }
    } else {
        out += kNull;
    }
}

std::string counted(std::uint64_t number, std::string_view one, std::string_view many)
{
    return std::to_string(number).append(" ").append(number == 1 ? one : many);
}

}  // namespace ostrel::tool
