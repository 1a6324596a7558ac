// Rules that several files of the wireless checks share.
#ifndef OSTREL_WLAN_CHECK_RULES_H
#define OSTREL_WLAN_CHECK_RULES_H

#include "src/support/host.h"

namespace ostrel {

// is_model_m2840 returns whether the library was built for that product model. It calls the host's comparison
// function each time, because that function's result takes precedence.
inline bool is_model_m2840() { return host_equals(OSTREL_MODEL, "M2840"); }

// is_wep_type returns whether an HNAP security type is a WEP type.
bool is_wep_type(const char* type);

}  // namespace ostrel

#endif
