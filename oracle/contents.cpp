#include "oracle/contents.h"

#include "rules/walk.h"

namespace ostrel::oracle {

using catalogue::Exposure;
using catalogue::Function;
using catalogue::kPlaces;
using catalogue::Place;
using catalogue::Value;

std::vector<std::string> texts_of(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) return {*text};
    const auto* blocks = std::get_if<std::vector<std::string>>(&value);
    return blocks == nullptr ? std::vector<std::string>() : *blocks;
}

Contents::Contents(const Function& function) : function_(function)
{
    for (const Exposure& exposure : catalogue::exposures_of(function)) {
        Exclusion& excluded = all_.emplace_back(Exclusion{&exposure, 0, {}});
        for (std::size_t i = 0; i < exposure.argument; ++i)
            excluded.output += rules::is_written(function.check->arguments[i]);
        for (const catalogue::Hazard& hazard : catalogue::hazards()) {
            for (const char byte : hazard.bytes) {
                for (const Place place : kPlaces) {
                    if (exposure.witness(place, byte) == nullptr)
                        excluded.never.at(static_cast<std::size_t>(place))
                            .set(static_cast<unsigned char>(byte));
                }
            }
        }
    }
}

std::string Contents::fault(std::span<const Value> values, std::span<const Value> after) const
{
    for (const Exclusion& excluded : all_) {
        const Value& held =
            excluded.exposure->is_after ? after[excluded.output] : values[excluded.exposure->argument];
        for (const std::string& text : texts_of(held)) {
            if (std::string found = fault(excluded, text); !found.empty()) return found;
        }
    }
    return "";
}

std::string Contents::fault(const Exclusion& excluded, const std::string& text) const
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool is_end = i == 0 || i + 1 == text.size();
        const bool is_false = (i == 0 && excluded.never[0][byte]) || (!is_end && excluded.never[1][byte]) ||
                              (i + 1 == text.size() && excluded.never[2][byte]);
        if (is_false) {
            return std::string(function_.arguments[excluded.exposure->argument].name) +
                   (excluded.exposure->is_after ? " after the call" : "") + ": byte " + std::to_string(byte) +
                   " at " + std::to_string(i);
        }
    }
    return "";
}

}  // namespace ostrel::oracle
