#include "src/wlan_check/rules.h"

#include "src/support/keywords.h"

namespace ostrel {

namespace {

constexpr auto kWepTypes = keywords("WEP-OPEN|WEP-SHARED|WEP-RADIUS");

}  // namespace

bool is_wep_type(const char* type) { return is_one_of(type, kWepTypes); }

}  // namespace ostrel
