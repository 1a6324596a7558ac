// Pages that explain what checks require, derived from the descriptions.
#ifndef OSTREL_TOOLS_EXPLAIN_EXPLAIN_H
#define OSTREL_TOOLS_EXPLAIN_EXPLAIN_H

#include <string>
#include <string_view>

#include "catalogue/catalogue.h"
#include "explain/select.h"
#include "terminal/style.h"

namespace ostrel::tool {

// declaration_of returns the function's C declaration without the semicolon.
std::string declaration_of(const catalogue::Function& function);

// explain returns a check's page, laid out for a terminal.
std::string explain(const catalogue::Function& function, const Look& look);

// list_checks lists the checks with their arguments and what they accept.
std::string list_checks(const Selection& selection, const Look& look);

// reference returns the checks' pages in Markdown.
std::string reference(const Selection& selection);

}  // namespace ostrel::tool

#endif
