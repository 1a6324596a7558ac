// The address rules over pieces of values; the exported ones are <ostrel/addresses.h>.
#ifndef OSTREL_PRIMITIVES_ADDRESSES_H
#define OSTREL_PRIMITIVES_ADDRESSES_H

#include <string_view>

namespace ostrel {

bool is_ipv4_address(std::string_view text);

// is_mac_address writes a wrong separator to standard output, see TcmValidateMACaddress.
bool is_mac_address(const char* value);

// is_station_address writes that and the line for a group address, see isValidOrdinaryMACAddress.
bool is_station_address(const char* value);

}  // namespace ostrel

#endif
