#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> management_checks() { return {}; }

}  // namespace ostrel::rules
