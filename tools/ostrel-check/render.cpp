#include "render.h"

#include <algorithm>

#include "reason.h"
#include "show.h"

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

void append_meaning(std::string& out, std::string_view meaning, const Result& result)
{
    out.append(kIndentation).append(meaning);
    const std::string text = why(result).text;
    if (!text.empty()) out.append(": ").append(text);
    out += '\n';
}

std::string counted(std::uint64_t number, std::string_view one, std::string_view many)
{
    return std::to_string(number).append(" ").append(number == 1 ? one : many);
}

std::uint64_t cases(const Tally& tally) { return tally.sum() - tally.of(Verdict::kMalformed); }

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
        append_escaped(out, result.problem, kLongestShown);
        out += '\n';
        return;
    }
    append_padded(out, has_code(result.verdict) ? std::to_string(result.code) : "", 6, true);
    out.append("  ").append(result.function->name);
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

std::string summary(const Tally& tally, const Counts& counts, std::uint64_t unreadable_files)
{
    std::string text = cases(tally) > 1 ? "By family and code:\n" + counts.table() : "";
    text += counted(cases(tally), "case", "cases") + ": " + std::to_string(tally.of(Verdict::kAccepted)) +
            " accepted, " + std::to_string(tally.of(Verdict::kRefused)) + " refused";
    const auto add = [&](Verdict verdict, std::string_view what) {
        if (tally.of(verdict) > 0) text.append(", ").append(std::to_string(tally.of(verdict))).append(what);
    };
    add(Verdict::kAnswer, " answered with a number");
    add(Verdict::kEnded, " ended the process");
    add(Verdict::kNoReturn, " did not return");
    if (const std::uint64_t malformed = tally.of(Verdict::kMalformed); malformed > 0) {
        text += "; " + counted(malformed, "malformed line", "malformed lines");
    }
    if (unreadable_files > 0) text += "; " + counted(unreadable_files, "unreadable file", "unreadable files");
    return text + "\n";
}

std::string json_summary(const Tally& tally, const Counts& counts, std::uint64_t unreadable_files)
{
    std::string text = "{\"summary\":{\"cases\":" + std::to_string(cases(tally));
    const auto add = [&](std::string_view name, std::uint64_t count) {
        text.append(",\"").append(name).append("\":").append(std::to_string(count));
    };
    for (std::size_t i = 0; i < kVerdicts; ++i) add(json_name(static_cast<Verdict>(i)), tally.counts.at(i));
    add("unreadable_files", unreadable_files);
    return text + "},\"families\":" + counts.json() + "}\n";
}

}  // namespace ostrel::tool
