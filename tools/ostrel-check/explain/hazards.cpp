#include "explain/hazards.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "catalogue/hazards.h"
#include "catalogue/texts.h"
#include "catalogue/value_json.h"
#include "write/show.h"

namespace ostrel::tool {

using catalogue::Exposure;
using catalogue::Function;
using catalogue::Hazard;
using catalogue::hazards;
using catalogue::kPlaces;
using catalogue::Place;
using nlohmann::ordered_json;

namespace {

// short_title returns a hazard's title without the list of its bytes.
std::string_view short_title(const Hazard& hazard)
{
    const bool is_long = hazard.name == "quotes" || hazard.name == "shell" || hazard.name == "markup";
    return is_long ? hazard.name : hazard.title;
}

std::string subject_of(const Function& function, const Exposure& exposure)
{
    return std::string(function.arguments[exposure.argument].name) +
           (exposure.is_after ? " after the call" : "");
}

bool may_contain(const Exposure& exposure, const Hazard& hazard)
{
    return std::ranges::any_of(kPlaces, [&](Place place) { return !exposure.bytes(place, hazard).empty(); });
}

// detail describes where a hazard's bytes can occur, and lists the bytes if only some of them can occur.
std::string detail(const Exposure& exposure, const Hazard& hazard)
{
    constexpr std::size_t kMostBytes = 40;
    std::vector<std::string> places;
    std::vector<std::string> bytes;
    for (const Place place : kPlaces) {
        const std::string found = exposure.bytes(place, hazard);
        if (found.empty()) continue;
        places.emplace_back(name_of(place));
        std::string& said = bytes.emplace_back();
        if (found.size() == hazard.bytes.size()) continue;
        said = " only ";
        append_escaped(said, found, kMostBytes);
    }
    const bool is_same = std::ranges::all_of(bytes, [&](const std::string& one) { return one == bytes[0]; });
    if (is_same && places.size() == kPlaces.size())
        return "anywhere" + (bytes[0].empty() ? "" : ";" + bytes[0]);
    std::string text;
    for (std::size_t i = 0; i < places.size(); ++i) {
        text += (i == 0 ? "" : is_same ? ", " : "; ") + places[i];
        if (!is_same) text += bytes[i];
    }
    return is_same && !bytes[0].empty() ? text + ";" + bytes[0] : text;
}

std::string cell(const Exposure& exposure, const Hazard& hazard)
{
    std::string text;
    for (const Place place : kPlaces) {
        if (!exposure.bytes(place, hazard).empty()) text += name_of(place).front();
    }
    return text.empty() ? "-" : text.size() == kPlaces.size() ? "any" : text;
}

std::string table_head()
{
    std::string head = "| check | argument |";
    std::string rule = "|---|---|";
    for (const Hazard& hazard : hazards()) {
        head.append(" ").append(short_title(hazard)).append(" |");
        rule += "---|";
    }
    return head + "\n" + rule + "\n";
}

ordered_json json_of(const Exposure& exposure)
{
    ordered_json kinds = ordered_json::object();
    for (const Hazard& hazard : hazards()) {
        ordered_json& places = kinds[std::string(hazard.name)] = ordered_json::object();
        for (const Place place : kPlaces) {
            const std::string bytes = exposure.bytes(place, hazard);
            if (bytes.empty()) continue;
            ordered_json& found = places[std::string(name_of(place))];
            found["bytes"] = catalogue::utf8_from_bytes(bytes);
            for (const catalogue::Value& value : exposure.witness(place, bytes[0])->with(bytes[0]))
                found["witness"].push_back(ordered_json(catalogue::json_from_value(value)));
        }
    }
    return kinds;
}

constexpr std::string_view kHead = R"(# What an accepted value may contain

Made by `scripts/hazards`. Before you paste a value into a shell command, a page or a configuration file, quote the
bytes that its row allows. In a cell, `-` means that an accepted value never contains such a byte, and `any` that the
byte may be anywhere; otherwise the letters state where: `f` first, `i` inside, `l` last. A row describes the value
that is passed or, for a buffer "after the call", the string that the buffer then contains; bytes after a new
terminator are unchanged. `ostrel-check explain` lists the bytes of each kind.

A check that returns 0 states that a value suits its parameter, not that the value is harmless.
)";

constexpr std::string_view kWitnesses = R"(
## Witnesses

For each argument and place, this list contains calls that are accepted with each of several bytes at one offset. An
entry consists of these bytes (the names of their kinds and, after a `=`, any others), the values, the number of the
value that contains the byte, the number of the string if that value consists of several, and the offset. The tests make
each of these calls, and many others in which no other byte may appear.

```json
)";

}  // namespace

void write_hazards(Page& page, const Function& function)
{
    const std::vector<Exposure>& exposures = catalogue::exposures_of(function);
    if (!exposures.empty()) page.heading("What an accepted value may contain");
    for (const Exposure& exposure : exposures) {
        std::string never;
        for (const Hazard& hazard : hazards()) {
            if (may_contain(exposure, hazard)) continue;
            never.append(never.empty() ? "never " : ", ").append(short_title(hazard));
        }
        page.item(subject_of(function, exposure), never.empty() ? "bytes of every kind" : never);
        for (const Hazard& hazard : hazards()) {
            if (may_contain(exposure, hazard))
                page.detail(std::string(hazard.title) + ": " + detail(exposure, hazard));
        }
    }
}

void add_hazards(ordered_json& argument, const Function& function, std::size_t index)
{
    for (const Exposure& exposure : catalogue::exposures_of(function)) {
        if (exposure.argument != index) continue;
        argument[exposure.is_after ? "may_contain_after" : "may_contain"] = json_of(exposure);
    }
}

std::string hazards_page()
{
    std::string text(kHead);
    std::string_view family;
    for (const Function& function : catalogue::functions()) {
        for (const Exposure& exposure : catalogue::exposures_of(function)) {
            if (function.family != family) {
                family = function.family;
                text.append("\n## ").append(family).append("\n\n").append(table_head());
            }
            text.append("| `").append(function.name).append("` | `");
            text.append(function.arguments[exposure.argument].name);
            text.append(exposure.is_after ? "` after the call |" : "` |");
            for (const Hazard& hazard : hazards())
                text.append(" ").append(cell(exposure, hazard)).append(" |");
            text += "\n";
        }
    }
    return text.append(kWitnesses).append(catalogue::found_hazards()).append("```\n");
}

}  // namespace ostrel::tool
