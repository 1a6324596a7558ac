// What several files of the wireless checks ask.
#ifndef OSTREL_WLAN_CHECK_RULES_H
#define OSTREL_WLAN_CHECK_RULES_H

#include "src/support/host.h"

namespace ostrel {

// is_model_m2840 asks about the product model that the library was built for. It asks the host's comparison
// at each call: where a host has one, its answer decides.
inline bool is_model_m2840() { return host_equals(OSTREL_MODEL, "M2840"); }

// is_wep_type tells whether an HNAP security type is one of WEP.
bool is_wep_type(const char* type);

}  // namespace ostrel

#endif
