// Explain: what a check wants, in words.
#ifndef OSTREL_TOOLS_EXPLAIN_H
#define OSTREL_TOOLS_EXPLAIN_H

#include <string>
#include <string_view>

#include "page.h"
#include "study.h"

namespace ostrel::tool {

// declaration_of gives the function as a C host declares it.
std::string declaration_of(const catalogue::Function& function);

// write_check says everything that is known of a check. The title is the caller's.
void write_check(Page& page, const Study& study);

// explain gives the page of the check of that name. Throws std::invalid_argument with a message for the user.
std::string explain(std::string_view name, bool with_colours);

// list_json gives the catalogue in JSON, as catalogue.schema.json describes it.
std::string list_json();

// reference and hazards give the pages of docs/ in Markdown.
std::string reference();
std::string hazards_page();

}  // namespace ostrel::tool

#endif
