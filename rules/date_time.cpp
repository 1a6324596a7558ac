#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> date_time() { return {}; }

}  // namespace ostrel::rules
