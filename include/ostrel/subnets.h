/*
 * Subnets: which addresses fit the gateway's own LAN.
 *
 * The subnet is judged as text, never with a mask: two addresses are in the same subnet when they agree up to
 * and including the last "." of the one they are compared with. For addresses in dotted-decimal notation that
 * is the fixed /24 network; "192.168.1.5" and "192.168.001.5" are in different ones.
 *
 * The functions print nothing, keep nothing and do not change their arguments. No pointer may be NULL. Values
 * are NUL-terminated byte strings of any length; so are the items of a list. A blank is the character 0x20
 * alone, no tab. An address is valid as for TcmValidateIPAddress.
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
 * 0; OSTREL_INVALID: in another subnet.
 */
OSTREL_API int isInSameSubnet(const char* reference, const char* address);

/*
 * TcmValidateAddressRange: a pool of addresses for the DHCP server (RFC 2131).
 *
 * Both ends are valid addresses in the subnet of lanAddress; their last numbers are from 1 to 254, and the
 * start's is not above the end's. A pool of one address is valid. lanAddress itself is not validated, but
 * without a "." it has no subnet and every pool is refused.
 *
 * 0; OSTREL_INVALID.
 */
OSTREL_API int TcmValidateAddressRange(const char* startAddress, const char* endAddress,
                                       const char* lanAddress);

/*
 * TcmValidateReservedAddress: a list of addresses that the DHCP server keeps for certain stations.
 *
 * The items are separated by "," and may have blanks around them. Each must be in the subnet of lanAddress,
 * as isInSameSubnet judges it; none is validated as an address. An empty list is one empty item, and so is
 * what follows a "," at the end: both are in no subnet but that of a lanAddress without a ".".
 *
 * An item counts as repeated when its text stands anywhere in the rest of the list, be it inside a longer
 * item, and the rest, behind its leading blanks, ends or has a "," exactly as many characters from its start
 * as the item is long. So an item that is repeated directly behind itself is found, a later one only when a
 * "," happens to stand in that place, and "X,X " (a blank behind the second) is not found.
 *
 * 0; OSTREL_INVALID: an item in another subnet; OSTREL_REPEATED. The first fault from the left decides, an
 * item's subnet before its repetition.
 *
 * The time grows with the length of the list; each item that has a "," in the place said adds the time to
 * search what follows it, so that a list of many such items takes time that grows with the square of its length.
 */
OSTREL_API int TcmValidateReservedAddress(const char* reservedList, const char* lanAddress);

/*
 * TcmValidateIPRouter: an address that the gateway may have on its LAN: a valid one that begins with
 * "192.168." (RFC 1918) and whose last number is from 1 to 254.
 *
 * 0; OSTREL_INVALID, also for the empty value.
 */
OSTREL_API int TcmValidateIPRouter(const char* address);

/*
 * TcmValidateofferDNS: the DNS servers that the DHCP server offers: one or two valid addresses separated by
 * ",", each with or without blanks around it.
 *
 * 0; OSTREL_INVALID, also for the empty list and for a "," at the end.
 */
OSTREL_API int TcmValidateofferDNS(const char* dnsList);

#endif
