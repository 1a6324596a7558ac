#include "summary/row.h"

#include <algorithm>
#include <iterator>

#include "map/path.h"
#include "write/json_writer.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

constexpr std::size_t kLongestPath = 256;
// An example shows only the beginning and the size of a longer string.
constexpr std::size_t kLongestShown = 200;

// cut_text returns the beginning of a long text. It does not split characters if the text is UTF-8.
std::string_view cut_text(std::string_view text, std::size_t size)
{
    if (text.size() <= size) return text;
    const std::size_t valid = valid_utf8(text.substr(0, size));
    constexpr std::size_t kLongestCharacter = 4;
    return text.substr(0, valid + kLongestCharacter > size ? valid : size);
}

catalogue::Value shortened(const catalogue::Value& value)
{
    const auto shorten = [](const std::string& text) {
        if (text.size() <= kLongestShown) return text;
        return std::string(cut_text(text, kLongestShown)) + "... (" + std::to_string(text.size()) + " bytes)";
    };
    if (const auto* text = std::get_if<std::string>(&value)) return shorten(*text);
    const auto* texts = std::get_if<std::vector<std::string>>(&value);
    if (texts == nullptr) return value;
    std::vector<std::string> result;
    std::ranges::transform(*texts, std::back_inserter(result), shorten);
    return result;
}

// escaped_text returns text with \xNN in place of each byte that is not valid UTF-8.
std::string escaped_text(std::string_view text)
{
    std::string out;
    while (!text.empty()) {
        const std::size_t valid = valid_utf8(text);
        out += text.substr(0, valid);
        text.remove_prefix(valid);
        if (text.empty()) break;
        append_escaped(out, text.substr(0, 1), 1);
        text.remove_prefix(1);
    }
    return out;
}

std::string_view member_text(const Result& result, std::string_view name, std::string& memory)
{
    const Member* member = result.record == nullptr ? nullptr : result.record->find(name);
    return member == nullptr ? "" : text_of(*member, memory);
}

}  // namespace

void append_counted_parameter(std::string& out, std::string_view path)
{
    path = cut_text(path, kLongestPath);
    std::string escaped;
    if (valid_utf8(path) < path.size()) path = escaped = escaped_text(path);
    // The first name is the name of the tree, never an instance.
    const std::size_t root = std::min(path.find('.'), path.size());
    std::string general;
    std::vector<std::string_view> instances;
    generalise(path.substr(root), general, instances);
    out.append(path.substr(0, root)).append(general);
}

SummaryRow row_of(const Result& result, const Style& style, std::string& parameter)
{
    SummaryRow row;
    if (result.function != nullptr) {
        const auto position = result.function - catalogue::functions().data();
        row.check = static_cast<std::uint16_t>(position);
    }
    row.verdict = result.verdict;
    if (is_code(result.verdict)) row.code = result.code;
    if (!style.with_rows) return row;
    row.reason = result.why.reason.id;
    parameter.clear();
    std::string memory;
    append_counted_parameter(parameter, member_text(result, "parameter", memory));
    row.parameter = parameter;
    return row;
}

SummaryRow row_of_unmapped(const Record& record, std::string& parameter)
{
    SummaryRow row;
    row.check = kUnmapped;
    parameter.clear();
    append_counted_parameter(parameter, record.path);
    row.parameter = parameter;
    return row;
}

std::string example_of(const Result& result, const Style& style)
{
    if (!style.with_rows || exit_code(result.verdict) == kExitAccepted) return "";
    rapidjson::StringBuffer buffer;
    JsonWriter json(buffer);
    json.StartObject();
    const auto add = [&](std::string_view name, std::string_view text) {
        if (text.empty()) return;
        json.plain(name);
        write_text(json, cut_text(text, 4 * kLongestShown));
    };
    std::string memory;
    add("id", member_text(result, "id", memory));
    if (result.verdict != Verdict::kMalformed) {
        json.plain("args");
        json.StartArray();
        for (const catalogue::Value& value : *result.values)
            write_value(json, shortened(value), style.encoding);
        json.EndArray();
    }
    add("text", result.why.text.empty() ? std::string_view(result.problem) : result.why.text);
    json.EndObject();
    return {buffer.GetString(), buffer.GetSize()};
}

}  // namespace ostrel::tool
