#include "catalogue/rows.h"

#include <algorithm>
#include <array>
#include <map>
#include <nlohmann/json.hpp>

#include "catalogue/case.h"
#include "catalogue/conditions.h"
#include "catalogue/texts.h"

namespace ostrel::catalogue {

using nlohmann::json;

namespace {

// lines_by_check reads no more of a line than its first member, which names the check.
std::map<std::string_view, std::vector<std::string_view>> lines_by_check()
{
    constexpr std::string_view kMark = "{\"check\": \"";
    std::map<std::string_view, std::vector<std::string_view>> index;
    for (std::string_view file : vector_files()) {
        while (!file.empty()) {
            const std::string_view line = file.substr(0, file.find('\n'));
            file.remove_prefix(std::min(file.size(), line.size() + 1));
            if (!line.starts_with(kMark)) continue;
            const std::string_view rest = line.substr(kMark.size());
            index[rest.substr(0, rest.find('"'))].push_back(line);
        }
    }
    return index;
}

Row row_from_json(const json& row)
{
    Row result;
    result.values = case_from_json(row).values;
    result.code = row.at("code").get<int>();
    if (row.contains("out")) result.out = text_from_json(row["out"]);
    if (row.contains("err")) result.err = text_from_json(row["err"]);
    if (row.contains("after")) {
        for (const json& value : row["after"]) result.after.push_back(value_from_json(value));
    }
    return result;
}

// Headings that speak of several functions without naming them.
struct Group {
    std::string_view title;
    std::array<std::string_view, 2> families;
    std::string_view part_of_name;
};

constexpr std::array kGroups = {
    Group{"The length checks of the branding", {"branding", ""}, ""},
    Group{"The assertions of the management-server checks", {"management", ""}, ""},
    Group{"The guest-access and HNAP checks", {"guest-access", "hnap"}, ""},
    Group{"Messages and codes are kept where like checks differ", {"forwarding", ""}, ""},
};

bool is_about(std::string_view title, const Function& function)
{
    if (title.find("`" + std::string(function.name) + "`") != std::string_view::npos) return true;
    return std::ranges::any_of(kGroups, [&](const Group& group) {
        const bool is_length_check =
            group.families[0] != "branding" ||
            std::ranges::any_of(function.codes, [](const Code& code) { return code.code == 802; }) ||
            function.name == "Param_check_color_value";
        return title.starts_with(group.title) &&
               std::ranges::find(group.families, function.family) != group.families.end() && is_length_check;
    });
}

// without_pointers leaves out where a decision's tests are, and the line breaks.
std::string without_pointers(std::string_view text)
{
    std::size_t end = text.size();
    for (const std::string_view mark : {"Row: ", "Rows: ", "Rows of", "Rows with", "Rows and",
                                        "Tests: ", "Test: ", "Test:\n", "Tests:\n", "; tests: "}) {
        end = std::min(end, text.find(mark));
    }
    std::string result;
    for (const char c : text.substr(0, end)) {
        const char shown = c == '\n' ? ' ' : c;
        if (shown == ' ' && (result.empty() || result.back() == ' ')) continue;
        result += shown;
    }
    while (result.ends_with(' ')) result.pop_back();
    return result;
}

// keyword_hint says in what a value differs from a keyword that it resembles.
std::string keyword_hint(const Function& function, std::span<const Value> values)
{
    const auto lower = [](std::string_view text) {
        std::string result(text);
        for (char& c : result) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        return result;
    };
    for (std::size_t i = 0; i < function.arguments.size(); ++i) {
        const std::string_view text = text_of(values, i);
        for (const std::string_view keyword : function.arguments[i].keywords) {
            if (text.empty() || text == keyword) continue;
            const std::string name(keyword);
            if (lower(text) == lower(keyword)) return "it differs from " + name + " in upper and lower case";
            if (text.size() == keyword.size() + 1 && text.starts_with(keyword)) {
                return byte_at(text, keyword.size()) + ", behind " + name;
            }
            if (text.size() == keyword.size() + 1 && text.ends_with(keyword)) {
                return byte_at(text, 0) + ", before " + name;
            }
        }
    }
    return "";
}

}  // namespace

std::vector<Row> rows_of(const Function& function)
{
    static const std::map<std::string_view, std::vector<std::string_view>> index = lines_by_check();
    std::vector<Row> rows;
    const auto lines = index.find(function.name);
    if (lines == index.end()) return rows;
    for (const std::string_view line : lines->second) {
        const json row = json::parse(line);
        if (!row.contains("long32") && !row.contains("wrapping")) rows.push_back(row_from_json(row));
    }
    return rows;
}

std::vector<Oddity> oddities_of(const Function& function)
{
    std::vector<Oddity> result;
    constexpr std::string_view kMark = "\n## ";
    const std::string_view text = decisions();
    for (std::size_t at = text.find(kMark); at != std::string_view::npos;) {
        const std::size_t begin = at + kMark.size();
        const std::size_t line_end = text.find('\n', begin);
        const std::size_t next = text.find(kMark, begin);
        const std::string_view title = text.substr(begin, line_end - begin);
        if (is_about(title, function)) {
            result.push_back({title, without_pointers(text.substr(line_end, next - line_end))});
        }
        at = next;
    }
    return result;
}

Finding condition_of(const Function& function, std::span<const Value> values, int code)
{
    for (const Code& condition : function.codes) {
        if (condition.code != code) continue;
        if (!condition.test) return {&condition, keyword_hint(function, values)};
        if (Fault detail = condition.test(values)) return {&condition, *detail};
    }
    return {};
}

}  // namespace ostrel::catalogue
