// Explain: what a check wants, laid out from its description.
#ifndef OSTREL_TOOLS_EXPLAIN_EXPLAIN_H
#define OSTREL_TOOLS_EXPLAIN_EXPLAIN_H

#include <string>
#include <string_view>

#include "catalogue/catalogue.h"
#include "explain/select.h"
#include "terminal/style.h"

namespace ostrel::tool {

// declaration_of gives the function as a C host declares it.
std::string declaration_of(const catalogue::Function& function);

// explain returns the page of a check, for a terminal; explain_json what the catalogue says of it.
std::string explain(const catalogue::Function& function, const Look& look);
std::string explain_json(const catalogue::Function& function);

// list_checks shows the checks with their arguments and what they accept.
std::string list_checks(const Selection& selection, const Look& look);

// list_json returns the catalogue in JSON, as catalogue.schema.json describes it.
std::string list_json(const Selection& selection);

// reference returns the pages of the checks in Markdown, hazards_page what accepted values of all may contain.
std::string reference(const Selection& selection);
std::string hazards_page();

}  // namespace ostrel::tool

#endif
