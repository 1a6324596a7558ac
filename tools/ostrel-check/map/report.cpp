#include "map/report.h"

#include <array>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "explain/page.h"
#include "judge/reason.h"
#include "map/load.h"
#include "rules/explain.h"
#include "terminal/style.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

using nlohmann::ordered_json;
using Kind = Difference::Kind;

std::string_view name_of(Kind kind)
{
    switch (kind) {
        case Kind::kRefused:
            return "allowed and refused";
        case Kind::kAccepted:
            return "not allowed and accepted";
        case Kind::kForeign:
            break;
    }
    return "not of the form and accepted";
}

// shown returns a value with its control bytes escaped. Other characters are unchanged.
std::string shown(std::string_view value)
{
    std::string text;
    for (const char& c : value) {
        if (static_cast<unsigned char>(c) < 0x80) {
            append_escaped(text, {&c, 1}, 1);
        } else {
            text += c;
        }
    }
    return text;
}

// brief shows a long value that repeats one character as a count and that character.
std::string brief(const std::string& value)
{
    constexpr std::size_t kLongest = 40;
    if (value.size() > kLongest) {
        std::size_t width = 1;
        while (width < 4 && (static_cast<unsigned char>(value[width]) & 0xC0U) == 0x80U) ++width;
        bool is_same = true;
        for (std::size_t i = width; i < value.size(); ++i) is_same = is_same && value[i] == value[i - width];
        if (is_same)
            return std::to_string(value.size() / width) + " times \"" + shown(value.substr(0, width)) + "\"";
        return "\"" + shown(value.substr(0, kLongest / 2)) + "...\" (" + std::to_string(value.size()) +
               " bytes)";
    }
    return "\"" + shown(value) + "\"";
}

std::string standing(const Comparison& one)
{
    std::string text(name_of(one.relation));
    if (one.relation == Relation::kUnknown) {
        return "no difference found among " + std::to_string(one.tried) + " values";
    }
    if (!one.is_proved) {
        text += one.relation == Relation::kNarrower ? "; no known value is accepted only by the gateway"
                                                    : "; no known allowed value is refused by the gateway";
    }
    return text;
}

std::string sentence(const Difference& one, bool is_markdown)
{
    const auto show = [&](const std::string& value) {
        return is_markdown ? as_code(brief(value)) : brief(value);
    };
    std::string text = one.kind == Kind::kForeign ? "outside the relation: " : "";
    text += show(one.value) + " is ";
    text += one.kind == Kind::kRefused ? "refused" : "accepted";
    if (one.kind == Kind::kForeign) text += ", although it does not have the form of the type";
    if (!one.reason.empty()) text += ": " + (is_markdown ? in_markdown(one.reason) : one.reason);
    if (!one.with.empty()) {
        std::string others;
        for (const auto& [name, value] : one.with)
            others += (others.empty() ? "" : ", ") + name + " = " + show(value);
        text += " (" + others + ")";
    }
    return text;
}

std::string type_of(const ModelFacts& facts)
{
    std::string text = (facts.is_list ? "list of " : "") + facts.type;
    if (!facts.limits.empty()) text += ", " + facts.limits;
    return text;
}

std::string rule_of(const MapEntry& entry) { return rules::accepted(*entry.function->check, gateway()); }

std::array<std::size_t, 5> counts_of(const std::vector<Comparison>& all)
{
    std::array<std::size_t, 5> counts{};
    for (const Comparison& one : all) ++counts.at(static_cast<std::size_t>(one.relation));
    return counts;
}

std::string summary(const std::vector<Comparison>& all)
{
    std::string text = std::to_string(all.size()) + " entries: ";
    const std::array<std::size_t, 5> counts = counts_of(all);
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const auto relation = static_cast<Relation>(i);
        text.append(i > 0 ? ", " : "").append(std::to_string(counts.at(i))).append(" ");
        text += relation == Relation::kUnknown ? "without a known difference" : name_of(relation);
    }
    return text;
}

std::string text_of(const Map& map, const std::vector<Comparison>& all)
{
    std::string text;
    for (const Comparison& one : all) {
        text += one.entry->path.text() + "\n";
        append_wrapped(text, std::string(one.entry->function->name) + ": " + standing(one), 2, 4);
        append_wrapped(text, "the model: " + type_of(*one.facts), 4, 2);
        append_wrapped(text, "the gateway: " + rule_of(*one.entry), 4, 2);
        for (const Difference& difference : one.differences)
            append_wrapped(text, sentence(difference, false), 4, 2);
    }
    for (const NotMapped& one : map.not_mapped) {
        text += one.path + "\n";
        append_wrapped(text, "not mapped: " + one.because, 2, 4);
    }
    append_wrapped(text, summary(all), 0, 2);
    return text;
}

std::string json_of(const Map& map, const std::vector<Comparison>& all)
{
    ordered_json entries = ordered_json::array();
    for (const Comparison& one : all) {
        ordered_json differences = ordered_json::array();
        for (const Difference& difference : one.differences) {
            ordered_json& added = differences.emplace_back(ordered_json{
                {"kind", name_of(difference.kind)}, {"value", difference.value}, {"code", difference.code}});
            if (!difference.reason.empty()) added["reason"] = difference.reason;
            for (const auto& [name, value] : difference.with) added["with"][name] = value;
        }
        entries.push_back({{"path", one.entry->path.text()},
                           {"check", one.entry->function->name},
                           {"type", (one.facts->is_list ? "list of " : "") + one.facts->type},
                           {"limits", one.facts->limits},
                           {"relation", name_of(one.relation)},
                           {"proved", one.is_proved},
                           {"tried", one.tried},
                           {"differences", differences},
                           {"because", one.entry->because}});
    }
    ordered_json others = ordered_json::array();
    for (const NotMapped& one : map.not_mapped) {
        others.push_back({{"path", one.path}, {"because", one.because}});
        if (!one.check.empty()) others.back()["check"] = one.check;
    }
    const ordered_json page = {{"about", map.about}, {"parameters", entries}, {"not_mapped", others}};
    return page.dump(1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

constexpr std::string_view kIntroduction =
    R"(For each parameter that a check of the gateway judges, this page shows what the data model allows, what the check
accepts, and values on which they disagree. The library has judged each of these values.

The relation compares only values that have the form of the parameter's type, because a management server does not send
others. Any decimal number has the form of an int and of an unsignedInt, and any text has the form of a string.

- **same**: the check accepts exactly the values that the model allows.
- **narrower**: the check refuses some values that the model allows.
- **wider**: the check accepts some values that the model does not allow: another number, a longer string, another
  keyword.
- **other**: both.
- **unknown**: no difference is known, but it is not proved that there is none.

Many checks also accept values that do not have the form of the type, for example letters after a number. The row then
shows one, as a remark outside the relation.

The relation is derived from the description of the check, not from examples. If a description or a type leaves
something open, the row states what is known. Numbers have no redundant sign and no leading zeros. Strings are in UTF-8;
the model counts characters, and the checks count bytes. Vendor-specific keywords are not considered.
)";

std::string markdown_of(const Map& map, const std::vector<Comparison>& all)
{
    const auto relative = [&](const std::string& path) { return as_code(path.substr(map.root.size())); };
    std::string text =
        "# " + in_markdown(map.about) + "\n\n" + std::string(kIntroduction) + "\n" + summary(all) + ".";
    if (!map.root.empty()) text += " All paths begin with " + as_code(map.root) + ".";
    text += "\n\n| parameter | the model | check | the gateway accepts | relation |\n|---|---|---|---|---|\n";
    for (const Comparison& one : all) {
        text += "| " + relative(one.entry->path.text()) + " | " + in_markdown(type_of(*one.facts)) + " | " +
                as_code(std::string(one.entry->function->name)) + " | " + in_markdown(rule_of(*one.entry)) +
                " | **" + std::string(name_of(one.relation)) + "**";
        std::string more = standing(one).substr(name_of(one.relation).size());
        if (one.relation == Relation::kUnknown) more = ": " + standing(one);
        text += more;
        for (const Difference& difference : one.differences) text += "; " + sentence(difference, true);
        text += " |\n";
    }
    text += "\n## Not mapped\n\n| parameter | check | reason |\n|---|---|---|\n";
    for (const NotMapped& one : map.not_mapped) {
        text += "| " + relative(one.path) + " | " + (one.check.empty() ? "-" : as_code(one.check)) + " | " +
                in_markdown(one.because) + " |\n";
    }
    return text;
}

}  // namespace

std::string report_of(const std::string& file, ReportFormat format)
{
    const Map map = load_map(file, Encoding::kUtf8);
    if (map.facts.empty()) throw std::invalid_argument(file + ": the map has no \"facts\" to compare with");
    const Model model = read_facts(map.facts);
    std::vector<Comparison> all;
    for (const MapEntry& entry : map.entries) {
        const auto facts = model.find(entry.path.general());
        if (facts == model.end()) {
            throw std::invalid_argument(map.file + ":" + std::to_string(entry.line) + ": " + map.facts +
                                        " has no " + entry.path.general());
        }
        all.push_back(compare(map, entry, facts->second));
    }
    if (format == ReportFormat::kJson) return json_of(map, all);
    return format == ReportFormat::kMarkdown ? markdown_of(map, all) : text_of(map, all);
}

}  // namespace ostrel::tool
