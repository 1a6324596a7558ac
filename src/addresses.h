// Parses an address at the start of a text, for rules that judge what follows it; <ostrel/addresses.h> judges whole
// values.
#ifndef OSTREL_SRC_ADDRESSES_H
#define OSTREL_SRC_ADDRESSES_H

namespace ostrel {

// skip_ipv4_address returns the end of an IPv4 address at the start of the text, or NULL if there is none. The caller
// judges the character that follows, which may be another digit.
const char* skip_ipv4_address(const char* text);

}  // namespace ostrel

#endif
