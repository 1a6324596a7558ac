// The rules for hosts, URLs and mail addresses that other rules call; the exported ones are <ostrel/hosts.h>.
#ifndef OSTREL_SRC_HOSTS_H
#define OSTREL_SRC_HOSTS_H

// The checks pass these rules on, and the address of a hidden function needs no relocation.
#pragma GCC visibility push(hidden)
namespace ostrel {

// validate_host takes a domain name or an IPv4 address.
int validate_host(const char* value);

int validate_server_url(const char* value);

// validate_firmware_url gives OSTREL_INVALID where TcmValidatefirmwareURL has a code of its own.
int validate_firmware_url(const char* value);

}  // namespace ostrel
#pragma GCC visibility pop

#endif
