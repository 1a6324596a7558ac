// Password rules (allowed lengths and characters) that several checks share.
#ifndef OSTREL_SRC_ACCOUNTS_H
#define OSTREL_SRC_ACCOUNTS_H

#include "src/strings.h"

namespace ostrel {

constexpr Text kPppPassword = text(1, 67, kLatin1Printable);
constexpr Text kLanConfigPassword = text(4, 12, kName);

}  // namespace ostrel

#endif
