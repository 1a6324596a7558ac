#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> time_checks() { return {}; }

}  // namespace ostrel::rules
