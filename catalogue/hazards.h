// Hazards: what an accepted value may contain, found by trying.
#ifndef OSTREL_CATALOGUE_HAZARDS_H
#define OSTREL_CATALOGUE_HAZARDS_H

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/rows.h"

namespace ostrel::catalogue {

// Hazard is a kind of bytes that somebody who pastes a value elsewhere has to mind.
struct Hazard {
    std::string_view name;  // as JSON has it
    std::string_view title;
    std::string_view bytes;
};

// hazards lists the kinds; a byte may be of several.
const std::vector<Hazard>& hazards();

// Finding is where the bytes of a kind can stand in an accepted value of an argument.
struct Places {
    bool first = false;
    bool inside = false;
    bool last = false;
    std::string bytes;  // those of the kind that were accepted somewhere

    [[nodiscard]] bool any() const { return first || inside || last; }
};

// describe says it in words: anywhere, first, inside, last, or never.
std::string describe(const Places& places);

struct Exposure {
    const Argument* argument;
    std::vector<Places> places;  // one for each of hazards()
};

// exposures_of tries every byte that is no letter or digit in many places of accepted values, inserted and in
// the place of another, for each argument that is a text. A set of bytes that is an argument holds them all. What counts is what
// the argument holds after the call.
std::vector<Exposure> exposures_of(const Function& function, const std::vector<Row>& rows);

// may_be_called tells that a call with these values neither asks the wireless driver nor goes on for ever.
bool may_be_called(const Function& function, const std::vector<Value>& values);

}  // namespace ostrel::catalogue

#endif
