/*
 * Checks for addresses on the gateway's LAN, and for the DNS servers that are offered there.
 *
 * Subnets are compared as text, never with a mask. An address is in the same subnet as a reference address if
 * the two are identical up to and including the last "." of the reference. For addresses in dotted-decimal
 * notation, a subnet is therefore a /24 network, except that "192.168.1.5" and "192.168.001.5" are in
 * different subnets.
 *
 * The functions print nothing, keep no state and do not change their arguments. No pointer may be NULL.
 * Values are NUL-terminated byte strings of any length, and the items of a list may also be of any length. A
 * space is the character 0x20; a tab is not a space. An address is valid if TcmValidateIPAddress accepts it.
 */
#ifndef OSTREL_SUBNETS_H
#define OSTREL_SUBNETS_H

#include <ostrel/api.h>

/*
 * isInSameSubnet: tests whether address begins with the part of reference up to and including its last ".".
 *
 * Neither argument is validated: "192.168.1." is in the subnet of "192.168.1.1", and every string, including
 * the empty one, is in the subnet of a reference without a ".".
 *
 * Returns 0, or OSTREL_INVALID if the address is in another subnet.
 */
OSTREL_API int isInSameSubnet(const char* reference, const char* address);

/*
 * TcmValidateAddressRange: a pool of addresses for the DHCP server (RFC 2131).
 *
 * Both ends must be valid addresses in the subnet of lanAddress; their last octets must be from 1 to 254, and
 * the last octet of the start must not be greater than that of the end. A pool of one address is valid.
 * lanAddress itself is not validated, but if it contains no ".", it has no subnet, and every pool is refused.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int TcmValidateAddressRange(const char* startAddress, const char* endAddress,
                                       const char* lanAddress);

/*
 * TcmValidateReservedAddress: a list of addresses that the DHCP server reserves for certain stations.
 *
 * The items are separated by "," and may be surrounded by spaces. Each must be in the subnet of lanAddress
 * according to isInSameSubnet, but is not validated as an address. An empty list counts as one empty item,
 * and a final "," is followed by an empty item. An empty item is in the subnet only if lanAddress contains no
 * ".".
 *
 * An item counts as repeated if it occurs anywhere in the rest of the list, even inside a longer item, but
 * only if the rest, without its leading spaces, is exactly as long as the item or has a "," at an offset
 * equal to the item's length. An immediate repetition is therefore found, except in "X,X " (with a space
 * after the second item). A later repetition is found only if a "," happens to be at that offset.
 *
 * Returns 0, OSTREL_INVALID if an item is in another subnet, or OSTREL_REPEATED. The first fault from the
 * left determines the result; each item is tested for its subnet first, then for repetition.
 *
 * The run time is proportional to the length of the list, except that the rest of the list is searched for
 * each item for which there is a "," at that offset. With many such items, the run time is proportional to
 * the square of the length of the list.
 */
OSTREL_API int TcmValidateReservedAddress(const char* reservedList, const char* lanAddress);

/*
 * TcmValidateIPRouter: an address that the gateway may have on its LAN, which is a valid address that begins
 * with "192.168." (RFC 1918) and has a last octet from 1 to 254.
 *
 * Returns 0 or OSTREL_INVALID. The empty value is invalid.
 */
OSTREL_API int TcmValidateIPRouter(const char* address);

/*
 * TcmValidateofferDNS: the DNS servers that the DHCP server offers, given as one or two valid addresses,
 * which are separated by "," and may be surrounded by spaces.
 *
 * Returns 0 or OSTREL_INVALID. An empty list and a list that ends in "," are invalid.
 */
OSTREL_API int TcmValidateofferDNS(const char* dnsList);

#endif
