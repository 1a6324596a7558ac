// The hazardous bytes that accepted values may contain, as listed in docs/hazards.md.
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

// Hazard is a class of bytes that need care when a value is pasted into a command, a page or a file.
struct Hazard {
    std::string_view name;  // the name used in JSON
    std::string_view title;
    std::string_view bytes;
};

// hazards returns all classes. A byte may belong to several of them.
std::span<const Hazard> hazards();

enum class Place { kFirst, kInside, kLast };

inline constexpr std::array kPlaces = {Place::kFirst, Place::kInside, Place::kLast};

std::string_view name_of(Place place);

bool stands_at(Place place, std::string_view text, char byte);

// Witness is a call that is accepted no matter which of these bytes is at the given offset in an argument.
struct Witness {
    std::string bytes;
    std::vector<Value> values;  // one for each argument that the function reads
    std::size_t argument = 0;
    std::size_t block = 0;  // the string that contains the offset, if the argument has several
    std::size_t offset = 0;

    [[nodiscard]] std::vector<Value> with(char byte) const;
};

// Exposure lists the bytes that an argument may contain, either when it is passed or after the call.
struct Exposure {
    std::size_t argument = 0;
    bool is_after = false;
    std::array<std::vector<Witness>, kPlaces.size()> witnesses;

    // witness returns an accepted call that has the byte at the given place, or NULL if there is none.
    [[nodiscard]] const Witness* witness(Place place, char byte) const;

    // bytes returns the hazard's bytes that can occur at the given place.
    [[nodiscard]] std::string bytes(Place place, const Hazard& hazard) const;
};

const std::vector<Exposure>& exposures_of(const Function& function);

// line_of returns an exposure in the form of a line in docs/hazards.md.
std::string line_of(const Function& function, const Exposure& exposure);

}  // namespace ostrel::catalogue

#endif
