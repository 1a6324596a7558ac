// Parses an address at the start of a string, for rules that check the characters after it.
// <ostrel/addresses.h> declares the checks for whole values.
#ifndef OSTREL_SRC_ADDRESSES_H
#define OSTREL_SRC_ADDRESSES_H

namespace ostrel {

// skip_ipv4_address returns the end of an IPv4 address at the start of the string, or NULL if there is none.
// The caller must check the next character, which may be another digit.
const char* skip_ipv4_address(const char* text);

}  // namespace ostrel

#endif
