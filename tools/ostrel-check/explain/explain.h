// Explain: the requirements of a check, laid out from its description.
#ifndef OSTREL_TOOLS_EXPLAIN_EXPLAIN_H
#define OSTREL_TOOLS_EXPLAIN_EXPLAIN_H

#include <string>
#include <string_view>

#include "catalogue/catalogue.h"
#include "explain/select.h"
#include "terminal/style.h"

namespace ostrel::tool {

// declaration_of returns the function as a C host declares it.
std::string declaration_of(const catalogue::Function& function);

// explain returns the page of a check, for a terminal.
std::string explain(const catalogue::Function& function, const Look& look);

// list_checks lists the checks with their arguments and what they accept.
std::string list_checks(const Selection& selection, const Look& look);

// reference returns the pages of the checks in Markdown.
std::string reference(const Selection& selection);

}  // namespace ostrel::tool

#endif
