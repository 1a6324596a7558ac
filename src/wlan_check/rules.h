// Rules that several files of the wireless checks share.
#ifndef OSTREL_WLAN_CHECK_RULES_H
#define OSTREL_WLAN_CHECK_RULES_H

#include "src/support/host.h"

namespace ostrel {

// is_model_m2840 calls the host's comparison function each time, because its result takes precedence.
inline bool is_model_m2840() { return host_equals(OSTREL_MODEL, "M2840"); }

bool is_wep_type(const char* type);

}  // namespace ostrel

#endif
