// The name rules that other rules call; the exported ones are <ostrel/names.h>.
#ifndef OSTREL_PRIMITIVES_NAMES_H
#define OSTREL_PRIMITIVES_NAMES_H

#include "primitives/strings.h"

namespace ostrel {

constexpr Text kPortMappingDescription = text(1, 32, kDescription);
constexpr Text kRouterNameText = text(1, 22, kRouterName);

}  // namespace ostrel

#endif
