// Finds checks by family and by words.
#ifndef OSTREL_TOOLS_EXPLAIN_SELECT_H
#define OSTREL_TOOLS_EXPLAIN_SELECT_H

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"

namespace ostrel::tool {

using Selection = std::vector<const catalogue::Function*>;

// select returns the checks of the family (of every family if it is empty) that match all patterns. A pattern
// matches if it occurs in the check's name, in the description of what it accepts, or in an argument's name
// or description, regardless of case.
Selection select(std::string_view family, const std::vector<std::string>& patterns);

}  // namespace ostrel::tool

#endif
