// Name rules (allowed lengths and characters) that several checks share.
#ifndef OSTREL_SRC_NAMES_H
#define OSTREL_SRC_NAMES_H

#include "src/strings.h"

namespace ostrel {

constexpr Text kPortMappingDescription = text(1, 32, kDescription);
constexpr Text kRouterNameText = text(1, 22, kRouterName);

}  // namespace ostrel

#endif
