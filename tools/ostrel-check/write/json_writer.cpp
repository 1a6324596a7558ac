#include "write/json_writer.h"

#include <cstdint>
#include <cstring>

#include "read/json_parser.h"
#include "rules/reason_json.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

// needs_no_escapes checks eight bytes at a time.
bool needs_no_escapes(std::string_view text)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    constexpr std::uint64_t kHighs = 0x80 * kOnes;
    const auto has_zero = [](std::uint64_t eight) { return (eight - kOnes) & ~eight & kHighs; };
    std::size_t at = 0;
    for (; at + 8 <= text.size(); at += 8) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, text.data() + at, sizeof eight);
        const std::uint64_t is_low = (eight - 0x20 * kOnes) & ~eight & kHighs;
        if ((is_low | has_zero(eight ^ '"' * kOnes) | has_zero(eight ^ '\\' * kOnes)) != 0) return false;
    }
    for (const char c : text.substr(at)) {
        if (static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\') return false;
    }
    return true;
}

}  // namespace

void JsonWriter::raw(std::string_view json)
{
    Prefix(rapidjson::kStringType);
    std::memcpy(os_->Push(json.size()), json.data(), json.size());
}

void JsonWriter::text(std::string_view text)
{
    if (needs_no_escapes(text)) {
        plain(text);
    } else {
        String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
    }
}

void write_text(JsonWriter& json, std::string_view text)
{
    if (valid_utf8(text) == text.size()) {
        json.text(text);
        return;
    }
    std::string escaped;
    append_escaped(escaped, text, text.size());
    json.text(escaped);
}

void write_bytes(JsonWriter& json, std::string_view bytes, Encoding encoding)
{
    if (is_ascii(bytes)) {
        json.text(bytes);
        return;
    }
    const std::string text = utf8_of(bytes, encoding);
    if (valid_utf8(text) == text.size()) {
        json.text(text);
        return;
    }
    json.StartObject();
    json.plain("base64");
    json.plain(base64_of(bytes));
    json.EndObject();
}

void write_value(JsonWriter& json, const catalogue::Value& value, Encoding encoding)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        write_bytes(json, *text, encoding);
    } else if (const auto* number = std::get_if<long long>(&value)) {
        json.Int64(*number);
    } else if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
        json.StartArray();
        for (const std::string& block : *texts) write_bytes(json, block, encoding);
        json.EndArray();
    } else {
        json.Null();
    }
}

void write_member(JsonWriter& json, const Member& member)
{
    if (member.is_json) {
        json.raw(member.value);
    } else {
        write_bytes(json, member.value, Encoding::kUtf8);
    }
}

void append_bytes(std::string& out, std::string_view bytes, Encoding encoding)
{
    if (is_ascii(bytes)) {
        rules::append_json_text(out, bytes);
        return;
    }
    rapidjson::StringBuffer buffer;
    JsonWriter json(buffer);
    write_bytes(json, bytes, encoding);
    out.append(buffer.GetString(), buffer.GetSize());
}

namespace {

// StringReader is a SAX handler for a JSON string.
struct StringReader : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, StringReader> {
    std::string text;
    // NOLINTBEGIN(bugprone-derived-method-shadowing-base-method)
    bool String(const char* begin, rapidjson::SizeType size, bool /*copy*/)
    {
        text.assign(begin, size);
        return true;
    }
    // NOLINTEND(bugprone-derived-method-shadowing-base-method)
};

}  // namespace

std::string text_of(const Member& member)
{
    if (member.is_json && member.value.starts_with('"') && member.value.find('\\') == std::string_view::npos)
        return std::string(member.value.substr(1, member.value.size() - 2));
    rapidjson::StringBuffer buffer;
    JsonWriter json(buffer);
    write_member(json, member);
    const std::string_view token(buffer.GetString(), buffer.GetSize());
    if (!token.starts_with('"')) return std::string(token);
    StringReader text;
    JsonParser().parse(token, text);
    return text.text;
}

}  // namespace ostrel::tool
