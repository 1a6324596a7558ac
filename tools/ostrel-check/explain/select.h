// Select: finds checks by words.
#ifndef OSTREL_TOOLS_EXPLAIN_SELECT_H
#define OSTREL_TOOLS_EXPLAIN_SELECT_H

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"

namespace ostrel::tool {

using Selection = std::vector<const catalogue::Function*>;

// select returns the checks of that family, or of all families if it is empty, that contain each of the patterns in
// their name, in what they accept, or in the name or the description of an argument. It ignores case.
Selection select(std::string_view family, const std::vector<std::string>& patterns);

}  // namespace ostrel::tool

#endif
