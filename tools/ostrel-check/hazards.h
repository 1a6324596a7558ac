// Hazards on pages and in JSON.
#ifndef OSTREL_TOOLS_HAZARDS_H
#define OSTREL_TOOLS_HAZARDS_H

#include <nlohmann/json_fwd.hpp>

#include "catalogue/catalogue.h"
#include "page.h"

namespace ostrel::tool {

// write_hazards says what an accepted value of each argument may contain.
void write_hazards(Page& page, const catalogue::Function& function);

// add_hazards adds the member "may_contain" to an argument, where it is a text that somebody passes.
void add_hazards(nlohmann::ordered_json& argument, std::string_view check);

}  // namespace ostrel::tool

#endif
