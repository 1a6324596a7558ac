#include "wlan_check/rules.h"

#include "support/keywords.h"

namespace ostrel {

bool is_wep_type(const char* type) { return is_one_of(type, "WEP-OPEN WEP-SHARED WEP-RADIUS"); }

}  // namespace ostrel
