// The address rules that other rules call; the exported ones are <ostrel/addresses.h>.
#ifndef OSTREL_SRC_ADDRESSES_H
#define OSTREL_SRC_ADDRESSES_H

namespace ostrel {

// skip_ipv4_address returns where an IPv4 address at the start of the text ends, NULL where there is none. Whoever calls
// it judges the character that follows, which may be one more digit.
const char* skip_ipv4_address(const char* text);

bool is_ipv4_address(const char* value);

// is_mac_address writes a wrong separator to standard output, see TcmValidateMACaddress.
bool is_mac_address(const char* value);

// is_station_address writes that and the line for a group address, see isValidOrdinaryMACAddress.
bool is_station_address(const char* value);

}  // namespace ostrel

#endif
