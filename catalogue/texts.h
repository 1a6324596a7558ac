// Files from the source tree that are embedded in the program.
#ifndef OSTREL_CATALOGUE_TEXTS_H
#define OSTREL_CATALOGUE_TEXTS_H

#include <string_view>

namespace ostrel::catalogue {

std::string_view schema();         // catalogue.schema.json
std::string_view found_hazards();  // the JSON lines of docs/hazards.md

}  // namespace ostrel::catalogue

#endif
