/*
 * IPv4 and MAC addresses.
 *
 * All return 0 for a valid address and OSTREL_INVALID for any other value, the empty one included. None
 * changes its argument.
 */
#ifndef OSTREL_ADDRESSES_H
#define OSTREL_ADDRESSES_H

#include <ostrel/api.h>

/*
 * TcmValidateIPAddress: an IPv4 address in dotted-decimal notation, 7 to 15 characters.
 *
 * Four decimal numbers of 0 to 255 between three dots. Leading zeros are decimal, not octal, and there may be
 * any number of them within the 15 characters: "010.001.000.001" is 10.1.0.1. Spaces and signs are not
 * allowed. value must not be NULL. Prints nothing.
 */
OSTREL_API int TcmValidateIPAddress(const char* value);

/*
 * TcmValidateMACaddress: an IEEE 802 MAC address, six octets of two hexadecimal digits of either case,
 * separated by ":"; 17 characters.
 *
 * NULL is invalid. A value of another length is invalid, and nothing is printed. Otherwise, if the first
 * fault is a character in the place of a ":", that character is written to standard output, without a line
 * end and without a flush. Nothing else is printed.
 */
OSTREL_API int TcmValidateMACaddress(const char* value);

/*
 * isValidOrdinaryMACAddress: a MAC address as for TcmValidateMACaddress that is an individual address.
 *
 * NULL is invalid. A character in the place of a ":" is written to standard output, as by that function; for
 * another length nothing is printed.
 *
 * If the group bit (I/G, the lowest bit of the first octet, IEEE 802) is set, as in every multicast address
 * and in the broadcast address, "Broadcasting MAC address, invalid.\n" is printed, without a flush, and the
 * address is invalid. This test comes before any later character is examined. "00:00:00:00:00:00" is valid.
 */
OSTREL_API int isValidOrdinaryMACAddress(const char* value);

#endif
