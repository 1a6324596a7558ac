#include "write/render_table.h"

#include <algorithm>

#include "catalogue/result_codes.h"
#include "terminal/style.h"
#include "write/json_writer.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

// A table is for people, so it shows only the beginning of long values and messages.
constexpr std::size_t kLongestShown = 200;
constexpr int kMostLinesShown = 8;

// kIndentation is the column in which the verdict begins.
constexpr std::size_t kIndentation = 9;
constexpr std::size_t kHanging = 2;

void append_padded(std::string& out, std::string_view text, std::size_t width, bool to_the_right)
{
    const std::string blanks(width - std::min(width, text.size()), ' ');
    if (to_the_right) out += blanks;
    out += text;
    if (!to_the_right) out += blanks;
}

void append_printed(std::string& out, std::string_view text, std::string_view mark, std::size_t columns)
{
    for (int shown = 0; !text.empty(); ++shown) {
        std::string marked(mark);
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (shown == kMostLinesShown) {
            append_wrapped(out, marked.append("..."), kIndentation);
            return;
        }
        if (line.empty()) continue;
        append_escaped(marked, line, kLongestShown);
        append_wrapped(out, marked, kIndentation, kHanging, columns);
    }
}

void append_whose(std::string& out, const Style& style, const Result& result)
{
    if (result.record == nullptr) return;
    bool has_name = false;
    const auto add = [&](std::string_view name) {
        const Member* member = result.record->find(name);
        if (member == nullptr || member->value.empty()) return;
        if (has_name) out += ' ';
        std::string memory;
        append_escaped(out, text_of(*member, memory), kLongestShown);
        has_name = true;
    };
    if (!style.group.empty() && style.group != "id") add(style.group);
    add("id");
    add("parameter");
    if (has_name) out += ": ";
}

}  // namespace

void append_after(std::string& out, const Result& result, std::size_t indentation, std::size_t columns)
{
    for (const calling::Written& written : result.after) {
        std::string line = std::string(written.argument->name).append(" after the call: ");
        const bool is_unwritten = written.argument->kind == catalogue::Kind::kIntegerOut &&
                                  std::holds_alternative<std::nullptr_t>(written.value);
        if (is_unwritten) {
            line += "not written";
        } else {
            append_value(line, written.value, kLongestShown);
        }
        append_wrapped(out, line, indentation, kHanging, columns);
    }
}

void append_row(std::string& out, const Style& style, const Location& place, const Result& result)
{
    std::string row;
    append_padded(row, std::to_string(place.line), 7, true);
    row += "  ";
    append_padded(row, name_of(result.verdict), 9, false);
    if (result.verdict == Verdict::kMalformed) {
        row += "       ";
        append_whose(row, style, result);
        append_escaped(row, result.problem, kLongestShown);
        append_wrapped(out, row, 0, kIndentation + kHanging, style.columns);
        return;
    }
    append_padded(row, has_code(result.verdict) ? std::to_string(result.code) : "", 6, true);
    row += "  ";
    append_whose(row, style, result);
    row += result.function->name;
    for (const catalogue::Value& value : *result.values) {
        row += ' ';
        append_value(row, value, kLongestShown);
    }
    append_wrapped(out, row, 0, kIndentation + kHanging, style.columns);
    if (result.verdict == Verdict::kRefused || !has_code(result.verdict)) {
        std::string meaning(has_code(result.verdict) ? catalogue::meaning(result.code) : result.problem);
        if (!result.why.text.empty()) meaning.append(": ").append(result.why.text);
        append_wrapped(out, meaning, kIndentation, kHanging, style.columns);
    }
    append_printed(out, result.printed.out, kLibrary, style.columns);
    append_printed(out, result.printed.err, "library, to standard error: ", style.columns);
    append_after(out, result, kIndentation, style.columns);
}

}  // namespace ostrel::tool
