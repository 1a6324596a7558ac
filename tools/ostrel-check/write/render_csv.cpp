#include "write/render_csv.h"

#include <algorithm>

#include "catalogue/result_codes.h"
#include "write/json_writer.h"

namespace ostrel::tool {

namespace {

constexpr std::string_view kColumns =
    "file,line,id,parameter,check,verdict,code,meaning,reason_id,argument,offset,reason,others";

void append_field(std::string& out, std::string_view text)
{
    if (text.find_first_of("\",\r\n") == std::string_view::npos) {
        out += text;
        return;
    }
    out += '"';
    for (const char c : text) {
        if (c == '"') out += c;
        out += c;
    }
    out += '"';
}

void append_column(std::string& out, std::string_view text)
{
    out += ',';
    append_field(out, text);
}

std::string in_json(const auto& write)
{
    rapidjson::StringBuffer buffer;
    JsonWriter json(buffer);
    write(json);
    return {buffer.GetString(), buffer.GetSize()};
}

void append_passed(std::string& out, const Result& result, std::string_view name)
{
    const Member* member = result.record == nullptr ? nullptr : result.record->find(name);
    std::string memory;
    append_column(out, member == nullptr ? "" : text_of(*member, memory));
}

bool has_column(const Member& member) { return member.name == "id" || member.name == "parameter"; }

std::string others_of(const Result& result)
{
    if (result.record == nullptr || std::ranges::all_of(result.record->members, has_column)) return {};
    return in_json([&](JsonWriter& json) {
        json.StartObject();
        for (const Member& member : result.record->members) {
            if (has_column(member)) continue;
            json.text(member.name);
            write_member(json, member);
        }
        json.EndObject();
    });
}

std::string args_of(const Result& result, Encoding encoding)
{
    if (result.verdict == Verdict::kMalformed || result.values == nullptr) return {};
    return in_json([&](JsonWriter& json) {
        json.StartArray();
        for (const catalogue::Value& value : *result.values) write_value(json, value, encoding);
        json.EndArray();
    });
}

}  // namespace

std::string csv_header(const Style& style)
{
    return std::string(kColumns).append(style.with_args ? ",args" : "").append("\n");
}

void append_csv(std::string& out, const Style& style, const Location& place, const Result& result)
{
    append_field(out, place.file);
    append_column(out, std::to_string(place.line));
    append_passed(out, result, "id");
    append_passed(out, result, "parameter");
    append_column(out, result.function == nullptr ? "" : result.function->name);
    append_column(out, json_name(result.verdict));
    append_column(out, has_code(result.verdict) ? std::to_string(result.code) : "");
    const bool is_answer = result.verdict == Verdict::kAnswer;
    append_column(out, is_answer                  ? "a number"
                       : has_code(result.verdict) ? catalogue::meaning(result.code)
                                                  : std::string_view(result.problem));
    const Why& why = result.why;
    append_column(out, why.text.empty() ? "" : why.reason.id);
    append_column(out, why.text.empty() || !why.reason.argument ? "" : why.reason.name);
    append_column(out, why.text.empty() || !why.reason.offset ? "" : std::to_string(*why.reason.offset));
    append_column(out, why.text);
    append_column(out, others_of(result));
    if (style.with_args) append_column(out, args_of(result, style.encoding));
    out += '\n';
}

}  // namespace ostrel::tool
