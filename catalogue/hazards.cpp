#include "catalogue/hazards.h"

#include <map>
#include <nlohmann/json.hpp>

#include "catalogue/case.h"
#include "catalogue/texts.h"

namespace ostrel::catalogue {

using nlohmann::ordered_json;

namespace {

std::string range(int first, int last)
{
    std::string bytes;
    for (int byte = first; byte <= last; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

// A kind of which every byte is accepted has its places alone: "fil" for first, inside and last.
ordered_json json_of(const Places& places, const Hazard& hazard)
{
    std::string where;
    if (places.first) where += 'f';
    if (places.inside) where += 'i';
    if (places.last) where += 'l';
    if (places.bytes == hazard.bytes) return where;
    return {where, utf8_from_bytes(places.bytes)};
}

Places places_from(const ordered_json& found, const Hazard& hazard)
{
    const std::string where = found.is_array() ? found[0] : found;
    const auto has = [&](char place) { return where.find(place) != std::string::npos; };
    return {has('f'), has('i'), has('l'),
            found.is_array() ? text_from_json(found[1]) : std::string(hazard.bytes)};
}

std::map<std::string, std::vector<Exposure>, std::less<>> read()
{
    std::map<std::string, std::vector<Exposure>, std::less<>> result;
    std::string_view rest = found_hazards();
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(line.size() + 1);
        const auto row = ordered_json::parse(line);
        Exposure exposure{row["argument"], {}};
        for (const Hazard& hazard : hazards()) {
            const auto found = row.find(hazard.name);
            exposure.places.push_back(found == row.end() ? Places() : places_from(*found, hazard));
        }
        result[row["check"]].push_back(std::move(exposure));
    }
    return result;
}

}  // namespace

const std::vector<Hazard>& hazards()
{
    static const std::string controls = range(1, 9) + range(11, 12) + range(14, 31) + "\x7F";
    static const std::string high = range(0x80, 0xFF);
    static const std::vector<Hazard> all = {
        {"blanks", "blank", " "},
        {"quotes", "quotes ' \" `", "'\"`"},
        {"shell", "shell $ ; | & < > ( ) { } [ ] * ? ! # ~ =", "$;|&<>(){}[]*?!#~="},
        {"line_ends", "line ends", "\n\r"},
        {"controls", "control bytes", controls},
        {"markup", "markup < > &", "<>&"},
        {"percent", "%", "%"},
        {"backslash", "backslash", "\\"},
        {"high", "bytes above 0x7F", high},
    };
    return all;
}

const std::vector<Exposure>& exposures_of(std::string_view check)
{
    static const auto all = read();
    static const std::vector<Exposure> none;
    const auto found = all.find(check);
    return found == all.end() ? none : found->second;
}

std::string line_of(std::string_view check, const Exposure& exposure)
{
    ordered_json row = {{"check", check}, {"argument", exposure.argument}};
    for (std::size_t i = 0; i < exposure.places.size(); ++i) {
        if (exposure.places[i].any())
            row[std::string(hazards()[i].name)] = json_of(exposure.places[i], hazards()[i]);
    }
    return row.dump() + "\n";
}

}  // namespace ostrel::catalogue
