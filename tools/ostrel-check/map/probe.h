// Probe: a value judged by an entry's check, the other arguments being the map's examples.
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
    // Throws std::invalid_argument where an example is missing.
    Probe(const Map& map, const MapEntry& entry);

    // predict returns the code by the description; none where the description does not cover the call.
    [[nodiscard]] std::optional<int> predict(const std::string& value) const;

    // judge returns the library's code; none where the check does not return.
    [[nodiscard]] std::optional<int> judge(const std::string& value) const;

    // reason says in a sentence why the value is refused.
    [[nodiscard]] std::string reason(const std::string& value) const;

    // others are the other arguments that were passed, by name.
    [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& others() const { return others_; }

 private:
    [[nodiscard]] std::optional<std::vector<catalogue::Value>> values_with(const std::string& value) const;

    const MapEntry* entry_;
    std::vector<catalogue::Value> values_;  // of the arguments that are given
    std::vector<std::pair<std::string, std::string>> others_;
};

}  // namespace ostrel::tool

#endif
