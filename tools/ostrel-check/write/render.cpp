#include "write/render.h"

#include <algorithm>

#include "write/json_writer.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

// A table is for people: of long texts it shows the beginning.
constexpr std::size_t kLongestShown = 200;
constexpr int kMostLinesShown = 8;

constexpr std::string_view kIndentation = "                          ";

void append_padded(std::string& out, std::string_view text, std::size_t width, bool to_the_right)
{
    const std::string blanks(width - std::min(width, text.size()), ' ');
    if (to_the_right) out += blanks;
    out += text;
    if (!to_the_right) out += blanks;
}

// append_printed shows what was printed line by line, each behind a mark.
void append_printed(std::string& out, std::string_view text, std::string_view mark)
{
    for (int shown = 0; !text.empty(); ++shown) {
        if (shown == kMostLinesShown) {
            out.append(kIndentation).append(mark).append("...\n");
            return;
        }
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (line.empty()) continue;
        out.append(kIndentation).append(mark);
        append_escaped(out, line, kLongestShown);
        out += '\n';
    }
}

// append_whose names the record as it names itself.
void append_whose(std::string& out, const Result& result)
{
    if (result.record == nullptr) return;
    bool has_name = false;
    for (const std::string_view name : {"id", "parameter"}) {
        const Member* member = result.record->find(name);
        if (member == nullptr || member->value.empty()) continue;
        if (has_name) out += ' ';
        append_escaped(out, text_of(*member), kLongestShown);
        has_name = true;
    }
    if (has_name) out += ": ";
}

void append_meaning(std::string& out, std::string_view meaning, const Result& result)
{
    out.append(kIndentation).append(meaning);
    const std::string& text = result.why.text;
    if (!text.empty()) out.append(": ").append(text);
    out += '\n';
}

}  // namespace

void append_after(std::string& out, std::string_view indentation, const Result& result)
{
    for (const catalogue::Written& written : result.after) {
        out.append(indentation).append(written.argument->name).append(" after the call: ");
        const bool is_unwritten = written.argument->kind == catalogue::Kind::kIntegerOut &&
                                  std::holds_alternative<std::nullptr_t>(written.value);
        if (is_unwritten) {
            out += "not written";
        } else {
            append_value(out, written.value, kLongestShown);
        }
        out += '\n';
    }
}

void append_row(std::string& out, const Place& place, const Result& result)
{
    append_padded(out, std::to_string(place.line), 7, true);
    out += "  ";
    append_padded(out, name_of(result.verdict), 9, false);
    if (result.verdict == Verdict::kMalformed) {
        out += "       ";
        append_whose(out, result);
        append_escaped(out, result.problem, kLongestShown);
        out += '\n';
        return;
    }
    append_padded(out, has_code(result.verdict) ? std::to_string(result.code) : "", 6, true);
    out += "  ";
    append_whose(out, result);
    out += result.function->name;
    for (const catalogue::Value& value : *result.values) {
        out += ' ';
        append_value(out, value, kLongestShown);
    }
    out += '\n';
    if (result.verdict == Verdict::kRefused) {
        append_meaning(out, catalogue::meaning(result.code), result);
    } else if (!has_code(result.verdict)) {
        append_meaning(out, result.problem, result);
    }
    append_printed(out, result.printed.out, "| ");
    append_printed(out, result.printed.err, "! ");
    append_after(out, kIndentation, result);
}

}  // namespace ostrel::tool
