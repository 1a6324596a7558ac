/*
 * Subnets: which addresses belong to the gateway's own LAN.
 *
 * The subnet is judged as text, never with a mask: two addresses are in the same subnet if they agree up to
 * and including the last "." of the one they are compared with. For addresses in dotted-decimal notation that
 * is the fixed /24 network; "192.168.1.5" and "192.168.001.5" are in different ones.
 *
 * The functions print nothing, keep no state and do not change their arguments. No pointer may be NULL.
 * Values are NUL-terminated byte strings of any length; so are the items of a list. A space is the character
 * 0x20; a tab is not one. An address is valid as for TcmValidateIPAddress.
 */
#ifndef OSTREL_SUBNETS_H
#define OSTREL_SUBNETS_H

#include <ostrel/api.h>

/*
 * isInSameSubnet: the address begins with the reference's text up to and including its last ".".
 *
 * Neither is validated: "192.168.1." is in the subnet of "192.168.1.1", and everything, the empty text
 * included, is in the subnet of a reference without a ".".
 *
 * Returns 0; OSTREL_INVALID: in another subnet.
 */
OSTREL_API int isInSameSubnet(const char* reference, const char* address);

/*
 * TcmValidateAddressRange: a pool of addresses for the DHCP server (RFC 2131).
 *
 * Both ends are valid addresses in the subnet of lanAddress; their last numbers are from 1 to 254, and the
 * start's is not above the end's. A pool of one address is valid. lanAddress itself is not validated, but
 * without a "." it has no subnet and every pool is refused.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int TcmValidateAddressRange(const char* startAddress, const char* endAddress,
                                       const char* lanAddress);

/*
 * TcmValidateReservedAddress: a list of addresses that the DHCP server reserves for certain stations.
 *
 * The items are separated by "," and may be surrounded by spaces. Each must be in the subnet of lanAddress,
 * as isInSameSubnet judges it; none is validated as an address. An empty list is one empty item, and so is
 * what follows a "," at the end: both are only in the subnet of a lanAddress without a ".".
 *
 * An item counts as repeated if its text occurs anywhere in the rest of the list, even inside a longer item,
 * and the rest, after its leading spaces, ends or has a "," exactly as many characters from its start as the
 * item is long. So an item that is repeated immediately is found, a later repetition only if a "," happens to
 * be in that place, and "X,X " (with a space after the second) is not found.
 *
 * Returns 0; OSTREL_INVALID: an item in another subnet; OSTREL_REPEATED. The first fault from the left
 * decides, an item's subnet before its repetition.
 *
 * The time is proportional to the length of the list, but for each item that has a "," in that place the rest
 * of the list is searched, so a list of many such items takes time proportional to the square of its length.
 */
OSTREL_API int TcmValidateReservedAddress(const char* reservedList, const char* lanAddress);

/*
 * TcmValidateIPRouter: an address that the gateway may have on its LAN: a valid one that begins with
 * "192.168." (RFC 1918) and whose last number is from 1 to 254.
 *
 * Returns 0 or OSTREL_INVALID. The empty value is invalid.
 */
OSTREL_API int TcmValidateIPRouter(const char* address);

/*
 * TcmValidateofferDNS: the DNS servers that the DHCP server offers: one or two valid addresses separated by
 * ",", each with or without surrounding spaces.
 *
 * Returns 0; OSTREL_INVALID, also for the empty list and for a "," at the end.
 */
OSTREL_API int TcmValidateofferDNS(const char* dnsList);

#endif
