#include "rules/wlan_check/shared.h"

namespace ostrel::rules {

std::vector<Step> listed_by_mode(const Words& mode_0, const Words& mode_1, const ModeLines& lines)
{
    return {refuse(402, longer_than(31), lines.too_long),
            refuse(402, not_among("readwrite_mode", {0, 1}), lines.unknown_mode),
            when(equal("readwrite_mode", 0), {refuse(402, none_of(mode_0), lines.not_listed)},
                 {refuse(402, none_of(mode_1), lines.not_listed)})};
}

}  // namespace ostrel::rules
