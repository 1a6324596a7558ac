#include "read/encoding.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <stdexcept>

#include "catalogue/value_json.h"

namespace ostrel::tool {

namespace {

constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

unsigned byte_at(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

struct Character {
    unsigned code = 0;
    std::size_t size = 0;  // in bytes, or 0 if they are not valid UTF-8
};

Character read_character(std::string_view text)
{
    const unsigned lead = byte_at(text, 0);
    if (lead < 0x80) return {lead, 1};
    if (lead < 0xC2 || lead > 0xF4) return {};
    const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() < size) return {};
    unsigned code = lead & (0xFFU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte_at(text, i) & 0xC0) != 0x80) return {};
        code = code << 6 | (byte_at(text, i) & 0x3F);
    }
    constexpr std::array<unsigned, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
    const bool is_surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < kLeast.at(size) || code > 0x10FFFF || is_surrogate) return {};
    return {code, size};
}

std::string in_hexadecimal(unsigned number, std::size_t least_digits)
{
    std::string digits;
    for (; number > 0 || digits.size() < least_digits; number /= 16) {
        digits.insert(digits.begin(), "0123456789ABCDEF"[number % 16]);
    }
    return digits;
}

}  // namespace

std::size_t ascii_size(std::string_view text)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t at = 0;
    for (std::uint64_t eight = 0; at + sizeof eight <= text.size(); at += sizeof eight) {
        std::memcpy(&eight, text.data() + at, sizeof eight);
        if ((eight & kHighBits) != 0) break;
    }
    while (at < text.size() && byte_at(text, at) < 0x80) ++at;
    return at;
}

std::size_t valid_utf8(std::string_view text)
{
    std::size_t at = 0;
    while (true) {
        at += ascii_size(text.substr(at));
        if (at == text.size()) return at;
        const Character character = read_character(text.substr(at));
        if (character.size == 0) return at;
        at += character.size;
    }
}

void encode(std::string& bytes, std::string_view text, Encoding encoding)
{
    if (encoding == Encoding::kUtf8 || is_ascii(text)) {
        bytes += text;
        return;
    }
    for (std::size_t at = 0; at < text.size();) {
        const Character character = read_character(text.substr(at));
        if (character.size == 0) {
            throw std::invalid_argument(
                "byte " + std::to_string(at + 1) + " of a string is \\x" +
                in_hexadecimal(byte_at(text, at), 2) +
                ", which is not UTF-8; files must be in UTF-8 even with --encoding latin-1");
        }
        if (character.code > 0xFF) {
            throw std::invalid_argument("a string contains U+" + in_hexadecimal(character.code, 4) +
                                        ", which does not exist in Latin-1");
        }
        bytes += static_cast<char>(character.code);
        at += character.size;
    }
}

std::string utf8_of(std::string_view bytes, Encoding encoding)
{
    if (encoding == Encoding::kUtf8 || is_ascii(bytes)) return std::string(bytes);
    return catalogue::utf8_from_bytes(bytes);
}

void decode_base64(std::string& bytes, std::string_view text)
{
    const auto refuse = [] { throw std::invalid_argument("the string in \"base64\" is not valid base64"); };
    if (text.size() % 4 != 0) refuse();
    std::size_t padding = 0;
    while (padding < 2 && padding < text.size() && text[text.size() - padding - 1] == '=') ++padding;
    unsigned bits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool is_padding = i >= text.size() - padding;
        const std::size_t digit = is_padding ? 0 : kDigits.find(text[i]);
        if (digit == std::string_view::npos) refuse();
        bits = bits << 6 | static_cast<unsigned>(digit);
        if (i % 4 != 3) continue;
        const std::size_t made = i + 1 == text.size() ? 3 - padding : 3;
        // Unused bits before the padding must be zero, or several strings would encode the same bytes.
        if ((bits & ((1U << 8 * (3 - made)) - 1)) != 0) refuse();
        for (std::size_t byte = 0; byte < made; ++byte) {
            bytes += static_cast<char>(bits >> (16 - 8 * byte) & 0xFF);
        }
        bits = 0;
    }
}

std::string base64_of(std::string_view bytes)
{
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::string_view three = bytes.substr(at, 3);
        unsigned bits = 0;
        for (std::size_t i = 0; i < 3; ++i) bits = bits << 8 | (i < three.size() ? byte_at(three, i) : 0);
        for (std::size_t digit = 0; digit < 4; ++digit) {
            text += digit > three.size() ? '=' : kDigits[bits >> (18 - 6 * digit) & 0x3F];
        }
    }
    return text;
}

}  // namespace ostrel::tool
