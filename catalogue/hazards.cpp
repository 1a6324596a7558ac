#include "catalogue/hazards.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>

#include "catalogue/texts.h"
#include "catalogue/value_json.h"

namespace ostrel::catalogue {

using nlohmann::ordered_json;

namespace {

std::string range(int first, int last)
{
    std::string bytes;
    for (int byte = first; byte <= last; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

bool holds_all(std::string_view text, std::string_view bytes)
{
    return std::ranges::all_of(bytes, [&](char byte) { return text.find(byte) != std::string_view::npos; });
}

// json_of writes the names of the hazards whose bytes are all present, and any remaining bytes after "=".
ordered_json json_of(const std::string& bytes)
{
    ordered_json result = ordered_json::array();
    std::string rest = bytes;
    for (const Hazard& hazard : hazards()) {
        if (!holds_all(bytes, hazard.bytes)) continue;
        result.push_back(hazard.name);
        std::erase_if(rest, [&](char byte) { return hazard.bytes.find(byte) != std::string_view::npos; });
    }
    if (!rest.empty()) result.push_back("=" + utf8_from_bytes(rest));
    return result;
}

std::string bytes_from(const ordered_json& written)
{
    std::string bytes;
    const auto add = [&](std::string_view more) {
        for (const char byte : more) {
            if (bytes.find(byte) == std::string::npos) bytes += byte;
        }
    };
    for (const ordered_json& one : written) {
        const std::string text = text_from_json(one);
        if (text.starts_with('=')) add(std::string_view(text).substr(1));
        for (const Hazard& hazard : hazards()) {
            if (hazard.name == text) add(hazard.bytes);
        }
    }
    return bytes;
}

ordered_json json_of(const Witness& witness)
{
    ordered_json values = ordered_json::array();
    for (const Value& value : witness.values) values.push_back(ordered_json(json_from_value(value)));
    return {json_of(witness.bytes), values, witness.argument, witness.block, witness.offset};
}

Witness witness_from(const ordered_json& written)
{
    Witness witness{bytes_from(written[0]), {}, written[2], written[3], written[4]};
    for (const ordered_json& value : written[1]) witness.values.push_back(value_from_json(value));
    return witness;
}

std::size_t argument_of(const Function& function, std::string_view name)
{
    const auto found = std::ranges::find(function.arguments, name, &Argument::name);
    return static_cast<std::size_t>(found - function.arguments.begin());
}

Exposure exposure_from(const Function& function, std::string_view line)
{
    const auto row = ordered_json::parse(line);
    Exposure exposure;
    exposure.argument = argument_of(function, row["argument"].get<std::string>());
    exposure.is_after = row.contains("after");
    for (const Place place : kPlaces) {
        const auto found = row.find(name_of(place));
        if (found == row.end()) continue;
        for (const ordered_json& one : *found)
            exposure.witnesses.at(static_cast<std::size_t>(place)).push_back(witness_from(one));
    }
    return exposure;
}

std::vector<Exposure> read(const Function& function)
{
    std::vector<Exposure> result;
    const std::string begin = "{\"check\":\"" + std::string(function.name) + "\",";
    std::string_view rest = found_hazards();
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(line.size() + 1);
        if (line.starts_with(begin)) result.push_back(exposure_from(function, line));
    }
    return result;
}

}  // namespace

std::span<const Hazard> hazards()
{
    static const std::string controls = range(1, 9) + range(11, 12) + range(14, 31) + "\x7F";
    static const std::string high = range(0x80, 0xFF);
    static const std::array<Hazard, 9> all = {{
        {"blanks", "blank", " "},
        {"quotes", "quotes ' \" `", "'\"`"},
        {"shell", "shell $ ; | & < > ( ) { } [ ] * ? ! # ~ =", "$;|&<>(){}[]*?!#~="},
        {"line_ends", "line endings", "\n\r"},
        {"controls", "control bytes", controls},
        {"markup", "markup < > &", "<>&"},
        {"percent", "%", "%"},
        {"backslash", "backslash", "\\"},
        {"high", "bytes above 0x7F", high},
    }};
    return all;
}

std::string_view name_of(Place place)
{
    return place == Place::kFirst ? "first" : place == Place::kInside ? "inside" : "last";
}

bool stands_at(Place place, std::string_view text, char byte)
{
    if (text.empty()) return false;
    if (place == Place::kFirst) return text.front() == byte;
    if (place == Place::kLast) return text.back() == byte;
    return text.size() > 2 && text.substr(1, text.size() - 2).find(byte) != std::string_view::npos;
}

std::vector<Value> Witness::with(char byte) const
{
    std::vector<Value> result = values;
    Value& value = result[argument];
    if (auto* text = std::get_if<std::string>(&value)) text->at(offset) = byte;
    if (auto* texts = std::get_if<std::vector<std::string>>(&value)) texts->at(block).at(offset) = byte;
    return result;
}

const Witness* Exposure::witness(Place place, char byte) const
{
    const auto& all = witnesses.at(static_cast<std::size_t>(place));
    const auto found = std::ranges::find_if(
        all, [&](const Witness& one) { return one.bytes.find(byte) != std::string::npos; });
    return found == all.end() ? nullptr : &*found;
}

std::string Exposure::bytes(Place place, const Hazard& hazard) const
{
    std::string result;
    for (const char byte : hazard.bytes) {
        if (witness(place, byte) != nullptr) result += byte;
    }
    return result;
}

const std::vector<Exposure>& exposures_of(const Function& function)
{
    static std::map<const Function*, std::vector<Exposure>> all;
    const auto [known, is_new] = all.try_emplace(&function);
    if (is_new) known->second = read(function);
    return known->second;
}

std::string line_of(const Function& function, const Exposure& exposure)
{
    ordered_json row = {{"check", function.name}, {"argument", function.arguments[exposure.argument].name}};
    if (exposure.is_after) row["after"] = true;
    for (const Place place : kPlaces) {
        for (const Witness& one : exposure.witnesses.at(static_cast<std::size_t>(place)))
            row[std::string(name_of(place))].push_back(json_of(one));
    }
    return row.dump() + "\n";
}

}  // namespace ostrel::catalogue
