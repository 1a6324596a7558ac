#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> wlan_radio() { return {}; }

}  // namespace ostrel::rules
