// The subnet rules that other rules call; the exported ones are <ostrel/subnets.h>.
#ifndef OSTREL_SRC_SUBNETS_H
#define OSTREL_SRC_SUBNETS_H

// The checks pass these rules on, and the address of a hidden function needs no relocation.
#pragma GCC visibility push(hidden)
namespace ostrel {

int validate_address_range(const char* start_address, const char* end_address, const char* lan_address);

// validate_reserved_addresses gives 0, OSTREL_INVALID or OSTREL_REPEATED.
int validate_reserved_addresses(const char* list, const char* lan_address);

int validate_router_address(const char* address);

int validate_offered_dns(const char* list);

}  // namespace ostrel
#pragma GCC visibility pop

#endif
