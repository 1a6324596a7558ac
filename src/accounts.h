// The account rules that other rules call; the exported ones are <ostrel/accounts.h>.
#ifndef OSTREL_SRC_ACCOUNTS_H
#define OSTREL_SRC_ACCOUNTS_H

#include "src/strings.h"

namespace ostrel {

int validate_provisioning_code(const char* value);

int validate_ppp_user_name(const char* value, int* type_out);

constexpr Text kPppPassword = text(1, 67, kLatin1Printable);
constexpr Text kLanConfigPassword = text(4, 12, kName);

}  // namespace ostrel

#endif
