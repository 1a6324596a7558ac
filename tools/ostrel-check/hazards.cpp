#include "hazards.h"

#include <nlohmann/json.hpp>

#include "catalogue/case.h"
#include "catalogue/hazards.h"
#include "explain.h"
#include "show.h"

namespace ostrel::tool {

using catalogue::Exposure;
using catalogue::Function;
using catalogue::Hazard;
using catalogue::hazards;
using catalogue::Places;
using nlohmann::ordered_json;

namespace {

// is_long tells kinds whose title names their bytes.
bool is_long(const Hazard& hazard)
{
    return hazard.name == "quotes" || hazard.name == "shell" || hazard.name == "markup";
}

std::string where(const Places& places)
{
    if (places.everywhere()) return "anywhere";
    std::string text;
    const auto add = [&](bool is_there, std::string_view what) {
        if (is_there) text.append(text.empty() ? "" : ", ").append(what);
    };
    add(places.first, "first");
    add(places.inside, "inside");
    add(places.last, "last");
    return text;
}

std::string cell(const Places& places)
{
    if (!places.any()) return "-";
    if (places.everywhere()) return "any";
    std::string text;
    if (places.first) text += "f";
    if (places.inside) text += "i";
    if (places.last) text += "l";
    return text;
}

std::string table_head()
{
    std::string head = "| check | argument |";
    std::string rule = "|---|---|";
    for (const Hazard& hazard : hazards()) {
        head.append(" ").append(is_long(hazard) ? hazard.name : hazard.title).append(" |");
        rule += "---|";
    }
    return head + "\n" + rule + "\n";
}

}  // namespace

void write_hazards(Page& page, const Function& function)
{
    const std::vector<Exposure>& exposures = catalogue::exposures_of(function.name);
    if (!exposures.empty()) page.heading("What an accepted value may contain");
    for (const Exposure& exposure : exposures) {
        std::string never;
        for (std::size_t i = 0; i < hazards().size(); ++i) {
            if (exposure.places[i].any()) continue;
            never.append(never.empty() ? "never " : ", ");
            never += is_long(hazards()[i]) ? hazards()[i].name : hazards()[i].title;
        }
        page.item(exposure.argument, never.empty() ? "bytes of every kind" : never);
        for (std::size_t i = 0; i < hazards().size(); ++i) {
            const Places& places = exposure.places[i];
            if (!places.any()) continue;
            std::string text = std::string(hazards()[i].title) + ": " + where(places);
            if (places.bytes.size() < hazards()[i].bytes.size()) {
                text += "; only ";
                append_escaped(text, places.bytes, 40);
            }
            page.detail(text);
        }
    }
}

void add_hazards(ordered_json& argument, std::string_view check)
{
    for (const Exposure& exposure : catalogue::exposures_of(check)) {
        if (argument["name"] != exposure.argument) continue;
        ordered_json kinds = ordered_json::object();
        for (std::size_t i = 0; i < hazards().size(); ++i) {
            const Places& places = exposure.places[i];
            ordered_json found = ordered_json::array();
            if (places.first) found.push_back("first");
            if (places.inside) found.push_back("inside");
            if (places.last) found.push_back("last");
            kinds[std::string(hazards()[i].name)] = {{"where", found},
                                                     {"bytes", catalogue::utf8_from_bytes(places.bytes)}};
        }
        argument["may_contain"] = kinds;
    }
}

std::string hazards_page()
{
    std::string text =
        "# What an accepted value may contain\n\n"
        "Made by `scripts/hazards`: found by trying every byte that is no letter or digit in many places "
        "of\n"
        "accepted values. Where the allowed bytes are an argument too, they were all allowed. Whoever pastes "
        "a\n"
        "value into a shell command, a page or a configuration file must quote what stands in its row. `-`:\n"
        "never; `any`: anywhere; otherwise where: `f` first, `i` inside, `l` last. Which bytes of a kind are "
        "meant\n"
        "says `ostrel-check explain`.\n\n"
        "A check that answers 0 says that a value suits its parameter. It does not say that the value is "
        "harmless.\n";
    std::string_view family;
    for (const Function& function : catalogue::functions()) {
        for (const Exposure& exposure : catalogue::exposures_of(function.name)) {
            if (function.family != family) {
                family = function.family;
                text.append("\n## ").append(family).append("\n\n").append(table_head());
            }
            text.append("| `").append(function.name).append("` | `").append(exposure.argument).append("` |");
            for (const Places& places : exposure.places) text.append(" ").append(cell(places)).append(" |");
            text += "\n";
        }
    }
    return text;
}

}  // namespace ostrel::tool
