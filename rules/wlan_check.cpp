#include "rules/rules.h"
#include "rules/words.h"

namespace ostrel::rules {

std::vector<Check> wlan_checks()
{
    return joined_checks({wlan_modes(), wlan_keys(), wlan_radio(), wlan_settings()});
}

}  // namespace ostrel::rules
