// Elements that several descriptions of wireless LAN checks share.
#ifndef OSTREL_RULES_WLAN_CHECK_SHARED_H
#define OSTREL_RULES_WLAN_CHECK_SHARED_H

#include <vector>

#include "rules/words.h"

namespace ostrel::rules {

inline const Words kWepTypes = {"WEP-OPEN", "WEP-SHARED", "WEP-RADIUS"};
inline const Words kSecurityTypes = {"WEP-OPEN",    "WEP-SHARED",   "WEP-RADIUS",
                                     "WPA-PSK",     "WPA-RADIUS",   "WPA2-PSK",
                                     "WPA2-RADIUS", "WPA-AUTO-PSK", "WPA-AUTO-RADIUS"};

// ModeLines are the lines of a check whose keywords depend on a read-write mode.
struct ModeLines {
    Line too_long;
    Line unknown_mode;
    Line not_listed;
};

// listed_by_mode allows one list of keywords if readwrite_mode is 0, and another if it is 1.
std::vector<Step> listed_by_mode(const Words& mode_0, const Words& mode_1, const ModeLines& lines);

}  // namespace ostrel::rules

#endif
