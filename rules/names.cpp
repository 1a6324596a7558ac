#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> names() { return {}; }

}  // namespace ostrel::rules
