// The subnet rules that other rules call; the exported ones are <ostrel/subnets.h>.
#ifndef OSTREL_PRIMITIVES_SUBNETS_H
#define OSTREL_PRIMITIVES_SUBNETS_H

#include <string_view>

namespace ostrel {

bool is_address_range(const char* start_address, const char* end_address, const char* lan_address);

// validate_reserved_addresses gives 0, OSTREL_INVALID or OSTREL_REPEATED.
int validate_reserved_addresses(std::string_view list, std::string_view lan_address);

bool is_router_address(const char* address);

bool is_offered_dns(std::string_view list);

}  // namespace ostrel

#endif
