#include "json_writer.h"

#include "rules/reason_json.h"
#include "show.h"

namespace ostrel::tool {

namespace {

void write_string(JsonWriter& json, std::string_view text)
{
    json.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

}  // namespace

void write_text(JsonWriter& json, std::string_view text)
{
    if (valid_utf8(text) == text.size()) {
        write_string(json, text);
        return;
    }
    std::string escaped;
    append_escaped(escaped, text, text.size());
    write_string(json, escaped);
}

void write_bytes(JsonWriter& json, std::string_view bytes, Encoding encoding)
{
    if (is_ascii(bytes)) {
        write_string(json, bytes);
        return;
    }
    const std::string text = utf8_of(bytes, encoding);
    if (valid_utf8(text) == text.size()) {
        write_string(json, text);
        return;
    }
    json.StartObject();
    json.Key("base64");
    write_string(json, base64_of(bytes));
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
        // The writer only asks for the type where a name could be meant.
        json.RawValue(member.value.data(), member.value.size(), rapidjson::kStringType);
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

}  // namespace ostrel::tool
