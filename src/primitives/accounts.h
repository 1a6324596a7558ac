// The account rules that other rules call; the exported ones are <ostrel/accounts.h>.
#ifndef OSTREL_PRIMITIVES_ACCOUNTS_H
#define OSTREL_PRIMITIVES_ACCOUNTS_H

#include <string_view>

namespace ostrel {

int validate_provisioning_code(const char* value);

int validate_ppp_user_name(const char* value, int* type_out);

int validate_ppp_password(std::string_view value);

int validate_lan_config_password(std::string_view value);

}  // namespace ostrel

#endif
