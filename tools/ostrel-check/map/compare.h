// Compares the values that a data model allows with those that the gateway's check accepts.
#ifndef OSTREL_TOOLS_MAP_COMPARE_H
#define OSTREL_TOOLS_MAP_COMPARE_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "map/facts.h"
#include "map/map.h"

namespace ostrel::tool {

enum class Relation {
    kSame,
    kNarrower,  // the check refuses some values that are allowed
    kWider,     // the check accepts some values that are not allowed
    kOther,     // both narrower and wider
    kUnknown,   // no difference was found, but equality is not proved
};

std::string_view name_of(Relation relation);

// Difference is a value on which the model and the check disagree, confirmed by calling the library.
struct Difference {
    enum class Kind {
        kRefused,   // the value is allowed but refused
        kAccepted,  // the value has the type's form and is not allowed, but is accepted
        kForeign,   // the value does not have the type's form, but is accepted
    };
    Kind kind = Kind::kRefused;
    std::string value;
    int code = 0;
    std::string reason;                                          // why the value is refused
    std::vector<std::pair<std::string, std::string>> with = {};  // the other arguments
};

struct Comparison {
    const MapEntry* entry = nullptr;
    const ModelFacts* facts = nullptr;
    Relation relation = Relation::kUnknown;
    // is_proved means that no undiscovered difference of kind kRefused or kAccepted can change relation.
    bool is_proved = false;
    std::vector<Difference> differences = {};  // at most one of each kind
    std::size_t tried = 0;                     // number of values whose outcome was predicted
};

// compare calls the library in separate processes. Throws std::invalid_argument if the map's entry lacks data
// that a comparison needs.
Comparison compare(const Map& map, const MapEntry& entry, const ModelFacts& facts);

}  // namespace ostrel::tool

#endif
