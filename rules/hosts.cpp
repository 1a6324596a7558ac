#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> hosts() { return {}; }

}  // namespace ostrel::rules
