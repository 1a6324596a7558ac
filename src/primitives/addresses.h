// The address rules over pieces of values; the exported ones are <ostrel/addresses.h>.
#ifndef OSTREL_PRIMITIVES_ADDRESSES_H
#define OSTREL_PRIMITIVES_ADDRESSES_H

#include <string_view>

namespace ostrel {

// skip_ipv4_address returns where an IPv4 address at the start of the text ends, NULL where there is none. The digits
// of its last number are all of the digits that stand there.
const char* skip_ipv4_address(const char* text);

bool is_ipv4_address(const char* value);

// is_mac_address writes a wrong separator to standard output, see TcmValidateMACaddress.
bool is_mac_address(const char* value);

// is_station_address writes that and the line for a group address, see isValidOrdinaryMACAddress.
bool is_station_address(const char* value);

}  // namespace ostrel

#endif
