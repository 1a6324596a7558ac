// Hazards: what an accepted value may contain, as hazards.ndjson has it.
#ifndef OSTREL_CATALOGUE_HAZARDS_H
#define OSTREL_CATALOGUE_HAZARDS_H

#include <string>
#include <string_view>
#include <vector>

namespace ostrel::catalogue {

// Hazard is a kind of bytes that somebody who pastes a value elsewhere has to mind.
struct Hazard {
    std::string_view name;  // as JSON has it
    std::string_view title;
    std::string_view bytes;
};

// hazards lists the kinds; a byte may be of several.
const std::vector<Hazard>& hazards();

// Places is where the bytes of a kind can be in an accepted value of an argument.
struct Places {
    bool first = false;
    bool inside = false;
    bool last = false;
    std::string bytes;  // those of the kind that were accepted somewhere

    [[nodiscard]] bool any() const { return first || inside || last; }
    [[nodiscard]] bool everywhere() const { return first && inside && last; }
};

struct Exposure {
    std::string argument;
    std::vector<Places> places;  // one for each of hazards()
};

// exposures_of gives what is known of the arguments of a check.
const std::vector<Exposure>& exposures_of(std::string_view check);

// line_of writes an exposure as a line of hazards.ndjson.
std::string line_of(std::string_view check, const Exposure& exposure);

}  // namespace ostrel::catalogue

#endif
