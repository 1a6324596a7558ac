#include "write/json_writer.h"

#include <utility>

#include "read/json_parser.h"
#include "rules/reason_json.h"
#include "write/show.h"

namespace ostrel::tool {

void JsonWriter::raw(std::string_view json)
{
    Prefix(rapidjson::kStringType);
    std::memcpy(os_->Push(json.size()), json.data(), json.size());
}

void JsonWriter::text(std::string_view text)
{
    if (plain_size(text) == text.size()) {
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

std::string_view text_of(const Member& member, std::string& memory)
{
    const std::string_view value = member.value;
    if (member.is_json && !value.starts_with('"')) return value;
    if (member.is_json && value.find('\\') == std::string_view::npos)
        return value.substr(1, value.size() - 2);
    if (!member.is_json && valid_utf8(value) == value.size()) return value;
    rapidjson::StringBuffer buffer;
    JsonWriter json(buffer);
    write_member(json, member);
    const std::string_view token(buffer.GetString(), buffer.GetSize());
    if (!token.starts_with('"')) return memory.assign(token);
    StringReader text;
    JsonParser().parse(token, text);
    return memory = std::move(text.text);
}

}  // namespace ostrel::tool
