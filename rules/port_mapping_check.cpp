#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> port_mapping_checks() { return {}; }

}  // namespace ostrel::rules
