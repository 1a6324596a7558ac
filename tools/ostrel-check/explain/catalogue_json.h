// The catalogue in JSON, as catalogue.schema.json describes it.
#ifndef OSTREL_TOOLS_EXPLAIN_CATALOGUE_JSON_H
#define OSTREL_TOOLS_EXPLAIN_CATALOGUE_JSON_H

#include <string>

#include "explain/select.h"

namespace ostrel::tool {

// explain_json returns the object for one check, and list_json the document with all selected checks.
std::string explain_json(const catalogue::Function& function);
std::string list_json(const Selection& selection);

}  // namespace ostrel::tool

#endif
