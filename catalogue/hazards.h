// Hazards: the bytes that an accepted value may contain, as listed in docs/hazards.md.
#ifndef OSTREL_CATALOGUE_HAZARDS_H
#define OSTREL_CATALOGUE_HAZARDS_H

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

// Hazard is a kind of bytes to look out for when a value is pasted elsewhere.
struct Hazard {
    std::string_view name;  // in JSON
    std::string_view title;
    std::string_view bytes;
};

// hazards lists the kinds. A byte may be of several kinds.
std::span<const Hazard> hazards();

enum class Place { kFirst, kInside, kLast };

inline constexpr std::array kPlaces = {Place::kFirst, Place::kInside, Place::kLast};

std::string_view name_of(Place place);

// stands_at returns whether a text has the byte in that place.
bool stands_at(Place place, std::string_view text, char byte);

// Witness is a call that is accepted with each of the bytes at an offset of an argument.
struct Witness {
    std::string bytes;
    std::vector<Value> values;  // of all arguments that are not only written
    std::size_t argument = 0;
    std::size_t block = 0;  // if that argument is several texts
    std::size_t offset = 0;

    [[nodiscard]] std::vector<Value> with(char byte) const;
};

// Exposure lists what an argument may contain, either in the value that is passed or after the call.
struct Exposure {
    std::size_t argument = 0;
    bool is_after = false;
    std::array<std::vector<Witness>, kPlaces.size()> witnesses;

    // witness returns an accepted value that has the byte in that place, or NULL if there is none.
    [[nodiscard]] const Witness* witness(Place place, char byte) const;

    // bytes returns the bytes of a kind that can be in that place.
    [[nodiscard]] std::string bytes(Place place, const Hazard& hazard) const;
};

// exposures_of returns the exposures of the arguments of a check.
const std::vector<Exposure>& exposures_of(const Function& function);

// line_of returns an exposure as a line of docs/hazards.md.
std::string line_of(const Function& function, const Exposure& exposure);

}  // namespace ostrel::catalogue

#endif
