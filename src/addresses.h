// An address at the start of a text, for rules that judge what follows it; <ostrel/addresses.h> has those for whole values.
#ifndef OSTREL_SRC_ADDRESSES_H
#define OSTREL_SRC_ADDRESSES_H

namespace ostrel {

// skip_ipv4_address returns where an IPv4 address at the start of the text ends, NULL where there is none. Whoever calls
// it judges the character that follows, which may be one more digit.
const char* skip_ipv4_address(const char* text);

}  // namespace ostrel

#endif
