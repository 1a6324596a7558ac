/*
 * Subnets: which addresses belong to the gateway's own LAN.
 *
 * The subnet is judged as text, never with a mask: an address is in the same subnet as a reference address if
 * both agree up to and including the last "." of the reference. For addresses in dotted-decimal notation,
 * that is the fixed /24 network; "192.168.1.5" and "192.168.001.5" are in different subnets.
 *
 * The functions print nothing, keep no state and do not change their arguments. No pointer may be NULL.
 * Values are NUL-terminated byte strings of any length, and the items of a list may also be of any length. A
 * space is the character 0x20; a tab is not a space. An address is valid if TcmValidateIPAddress accepts it.
 */
#ifndef OSTREL_SUBNETS_H
#define OSTREL_SUBNETS_H

#include <ostrel/api.h>

/*
 * isInSameSubnet: whether the address begins with the text of the reference up to and including its last ".".
 *
 * Neither is validated: "192.168.1." is in the subnet of "192.168.1.1", and every string, including the empty
 * one, is in the subnet of a reference without a ".".
 *
 * Returns 0, or OSTREL_INVALID if the address is in another subnet.
 */
OSTREL_API int isInSameSubnet(const char* reference, const char* address);

/*
 * TcmValidateAddressRange: a pool of addresses for the DHCP server (RFC 2131).
 *
 * Both ends must be valid addresses in the subnet of lanAddress; their last octets must be from 1 to 254, and
 * the last octet of the start must not be greater than that of the end. A pool of one address is valid.
 * lanAddress itself is not validated, but without a "." it has no subnet, and every pool is refused.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int TcmValidateAddressRange(const char* startAddress, const char* endAddress,
                                       const char* lanAddress);

/*
 * TcmValidateReservedAddress: a list of addresses that the DHCP server reserves for certain stations.
 *
 * The items are separated by "," and may be surrounded by spaces. Each must be in the subnet of lanAddress
 * according to isInSameSubnet; none is validated as an address. An empty list is one empty item, and so is
 * the text after a final ",": both are in the subnet only if lanAddress contains no ".".
 *
 * An item counts as repeated if its text occurs anywhere in the rest of the list, even inside a longer item,
 * and if the rest, without its leading spaces, is exactly as long as the item or has a "," at the offset that
 * equals the length of the item. An immediate repetition is therefore found, a later one only if a ","
 * happens to be at that offset, and "X,X " (with a space after the second item) is not found.
 *
 * Returns 0, OSTREL_INVALID if an item is in another subnet, or OSTREL_REPEATED. The first fault from the
 * left determines the result; the subnet of an item is tested before its repetition.
 *
 * The time is proportional to the length of the list, except that the rest of the list is searched for each
 * item after which a "," is at that offset. A list of many such items takes time proportional to the square
 * of its length.
 */
OSTREL_API int TcmValidateReservedAddress(const char* reservedList, const char* lanAddress);

/*
 * TcmValidateIPRouter: an address that the gateway may have on its LAN: a valid address that begins with
 * "192.168." (RFC 1918) and whose last octet is from 1 to 254.
 *
 * Returns 0 or OSTREL_INVALID. The empty value is invalid.
 */
OSTREL_API int TcmValidateIPRouter(const char* address);

/*
 * TcmValidateofferDNS: the DNS servers that the DHCP server offers: one or two valid addresses separated by
 * ",", each with or without surrounding spaces.
 *
 * Returns 0 or OSTREL_INVALID. An empty list and a list that ends in "," are invalid.
 */
OSTREL_API int TcmValidateofferDNS(const char* dnsList);

#endif
