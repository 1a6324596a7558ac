#include "summary/summary_form.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "write/show.h"

namespace ostrel::tool {

namespace {

using nlohmann::ordered_json;

constexpr std::size_t kLongestShown = 200;

const catalogue::Function* function_of(const SummaryRow& row)
{
    return row.check == kNoCheck ? nullptr : &catalogue::functions()[row.check];
}

// Ends counts the records of a family. Accepted and refused records are counted by code, accepted ones first,
// and all other records are counted by verdict.
struct Ends {
    std::string_view family;
    std::map<std::pair<bool, int>, std::uint64_t> by_code;
    std::map<Verdict, std::uint64_t> by_verdict;
};

std::vector<Ends> ends_of_families(const Summary& summary)
{
    std::vector<Ends> all;
    summary.for_each([&](const CountedRow& counted) {
        const Verdict verdict = counted.row.verdict;
        const catalogue::Function* function = function_of(counted.row);
        if (function == nullptr || verdict == Verdict::kMalformed) return;
        if (all.empty() || all.back().family != function->family) all.push_back({function->family, {}, {}});
        if (is_code(verdict)) {
            all.back().by_code[{counted.row.code != 0, counted.row.code}] += counted.count;
        } else {
            all.back().by_verdict[verdict] += counted.count;
        }
    });
    return all;
}

std::string families_text(const Summary& summary)
{
    std::string text;
    for (const Ends& ends : ends_of_families(summary)) {
        std::string line;
        const auto add = [&](const std::string& what, std::uint64_t count) {
            line.append(line.empty() ? "" : ", ").append(what).append(": ").append(std::to_string(count));
        };
        for (const auto& [key, count] : ends.by_code)
            add(key.second == 0 ? "accepted" : "refused " + std::to_string(key.second), count);
        for (const auto& [verdict, count] : ends.by_verdict)
            add(verdict == Verdict::kAnswer ? "answered" : std::string(name_of(verdict)), count);
        text.append("  ").append(ends.family).append("  ").append(line).append("\n");
    }
    return text;
}

ordered_json families_json(const Summary& summary)
{
    ordered_json families = ordered_json::object();
    for (const Ends& ends : ends_of_families(summary)) {
        ordered_json& family = families[std::string(ends.family)];
        for (const auto& [key, count] : ends.by_code) family[std::to_string(key.second)] = count;
        for (const auto& [verdict, count] : ends.by_verdict)
            family[verdict == Verdict::kAnswer ? "answered" : std::string(json_name(verdict))] = count;
    }
    return families;
}

void append_example(std::string& text, std::string_view example)
{
    if (example.empty()) return;
    const ordered_json shown = ordered_json::parse(example);
    std::string line;
    if (shown.contains("id")) line += shown["id"].get<std::string>() + " ";
    if (shown.contains("args")) line += shown["args"].dump() + ": ";
    if (shown.contains("text")) line += shown["text"].get<std::string>();
    text += "             ";
    append_escaped(text, line, 4 * kLongestShown);
    text += '\n';
}

std::string rows_text(const Summary& summary)
{
    std::string text;
    std::string last;
    summary.for_each([&](const CountedRow& counted) {
        const catalogue::Function* function = function_of(counted.row);
        std::string head = "  ";
        head += function == nullptr ? "(no check)" : function->name;
        if (!counted.row.parameter.empty()) head += ' ';
        append_escaped(head, counted.row.parameter, 2 * kLongestShown);
        head += counted.is_others ? " (other parameters)\n" : "\n";
        if (head != last) text += head;
        last = std::move(head);
        const std::string count = std::to_string(counted.count);
        text.append(11 - std::min<std::size_t>(count.size(), 11), ' ').append(count).append("  ");
        text += name_of(counted.row.verdict);
        if (counted.row.verdict == Verdict::kRefused) text += " " + std::to_string(counted.row.code);
        if (!counted.row.reason.empty()) text.append(" ").append(counted.row.reason);
        text += '\n';
        append_example(text, counted.row.example);
    });
    return text;
}

ordered_json rows_json(const Summary& summary)
{
    ordered_json rows = ordered_json::array();
    summary.for_each([&](const CountedRow& counted) {
        ordered_json row = ordered_json::object();
        const SummaryRow& given = counted.row;
        if (const catalogue::Function* function = function_of(given)) row["check"] = function->name;
        if (counted.is_others) row["other_parameters"] = true;
        if (!given.parameter.empty()) row["parameter"] = given.parameter;
        row["verdict"] = json_name(given.verdict);
        if (is_code(given.verdict)) row["code"] = given.code;
        if (!given.reason.empty()) row["reason"] = given.reason;
        row["count"] = counted.count;
        if (!given.example.empty()) row["example"] = ordered_json::parse(given.example);
        rows.push_back(std::move(row));
    });
    return rows;
}

std::uint64_t cases(const Tally& tally) { return tally.sum() - tally.of(Verdict::kMalformed); }

}  // namespace

std::string summary_text(const Summary& summary, bool with_rows)
{
    const Tally& tally = summary.tally();
    std::string text;
    if (with_rows) text += "By check, parameter and reason:\n" + rows_text(summary);
    if (summary.unmapped().has_map()) text += summary.unmapped().text();
    if (cases(tally) > 1) text += "By family and code:\n" + families_text(summary);
    text += counted(cases(tally), "case", "cases") + ": " + std::to_string(tally.of(Verdict::kAccepted)) +
            " accepted, " + std::to_string(tally.of(Verdict::kRefused)) + " refused";
    const auto add = [&](Verdict verdict, std::string_view what) {
        if (tally.of(verdict) > 0) text.append(", ").append(std::to_string(tally.of(verdict))).append(what);
    };
    add(Verdict::kAnswer, " returned a number");
    add(Verdict::kEnded, " ended the process");
    add(Verdict::kNoReturn, " did not return");
    add(Verdict::kNoDriver, " not judged (no driver)");
    if (const std::uint64_t malformed = tally.of(Verdict::kMalformed); malformed > 0) {
        text += "; " + counted(malformed, "malformed line", "malformed lines");
    }
    if (const std::uint64_t files = summary.unreadable_files(); files > 0)
        text += "; " + counted(files, "unreadable file", "unreadable files");
    return text + "\n";
}

std::string summary_json(const Summary& summary, bool with_rows)
{
    ordered_json result;
    ordered_json& total = result["summary"];
    total["cases"] = cases(summary.tally());
    for (std::size_t i = 0; i < kVerdicts; ++i)
        total[std::string(json_name(static_cast<Verdict>(i)))] = summary.tally().counts.at(i);
    total["unreadable_files"] = summary.unreadable_files();
    result["families"] = families_json(summary);
    if (with_rows) result["rows"] = rows_json(summary);
    if (summary.unmapped().has_map()) result["map"] = summary.unmapped().json();
    return result.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

}  // namespace ostrel::tool
