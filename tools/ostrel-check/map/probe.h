// Judges a value with the check of a map entry, using the map's examples as the other arguments.
#ifndef OSTREL_TOOLS_MAP_PROBE_H
#define OSTREL_TOOLS_MAP_PROBE_H

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "map/map.h"

namespace ostrel::tool {

class Probe {
 public:
    // Throws std::invalid_argument if an example is missing.
    Probe(const Map& map, const MapEntry& entry);

    // predict returns the code according to the description, or nothing if that does not cover the call.
    [[nodiscard]] std::optional<int> predict(const std::string& value) const;

    // judge returns the library's code, or nothing if the check does not return.
    [[nodiscard]] std::optional<int> judge(const std::string& value) const;

    [[nodiscard]] std::string reason(const std::string& value) const;

    // others returns the other arguments that were passed, by name.
    [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& others() const { return others_; }

 private:
    [[nodiscard]] std::optional<std::vector<catalogue::Value>> values_with(const std::string& value) const;

    const MapEntry* entry_;
    std::vector<catalogue::Value> values_;  // values for the arguments that must be given
    std::vector<std::pair<std::string, std::string>> others_;
};

}  // namespace ostrel::tool

#endif
