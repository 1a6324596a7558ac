// The rules for hosts, URLs and mail addresses that other rules call; the exported ones are <ostrel/hosts.h>.
#ifndef OSTREL_PRIMITIVES_HOSTS_H
#define OSTREL_PRIMITIVES_HOSTS_H

#include <string_view>

namespace ostrel {

// is_host takes a domain name or an IPv4 address.
bool is_host(std::string_view text);

bool is_server_url(const char* value);

bool is_firmware_url(const char* value);

}  // namespace ostrel

#endif
