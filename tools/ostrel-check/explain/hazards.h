// Writes hazards on pages and in JSON.
#ifndef OSTREL_TOOLS_EXPLAIN_HAZARDS_H
#define OSTREL_TOOLS_EXPLAIN_HAZARDS_H

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "catalogue/catalogue.h"
#include "explain/page.h"

namespace ostrel::tool {

// write_hazards writes what an accepted value of each argument may contain.
void write_hazards(Page& page, const catalogue::Function& function);

// add_hazards adds the members "may_contain" and "may_contain_after" to an argument that is a string.
void add_hazards(nlohmann::ordered_json& argument, const catalogue::Function& function, std::size_t index);

// hazards_page returns the content of docs/hazards.md.
std::string hazards_page();

}  // namespace ostrel::tool

#endif
