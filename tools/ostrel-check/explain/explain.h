// Explain: what a check wants, laid out from its description.
#ifndef OSTREL_TOOLS_EXPLAIN_EXPLAIN_H
#define OSTREL_TOOLS_EXPLAIN_EXPLAIN_H

#include <string>
#include <string_view>

#include "catalogue/catalogue.h"

namespace ostrel::tool {

// declaration_of gives the function as a C host declares it.
std::string declaration_of(const catalogue::Function& function);

// explain gives the page of a check, for a terminal.
std::string explain(const catalogue::Function& function, bool with_colours);

// list_checks shows every check with its arguments and what it accepts.
std::string list_checks(bool with_colours);

// list_json gives the catalogue in JSON, as catalogue.schema.json describes it.
std::string list_json();

// reference gives the pages of all checks in Markdown, hazards_page what their accepted values may contain.
std::string reference();
std::string hazards_page();

}  // namespace ostrel::tool

#endif
