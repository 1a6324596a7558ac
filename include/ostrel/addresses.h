/*
 * Checks for IPv4 and MAC addresses.
 *
 * Every function returns 0 for a valid address and OSTREL_INVALID for any other value, including the empty
 * one. No function changes its argument.
 */
#ifndef OSTREL_ADDRESSES_H
#define OSTREL_ADDRESSES_H

#include <ostrel/api.h>

/*
 * TcmValidateIPAddress: an IPv4 address in dotted-decimal notation, 7 to 15 characters.
 *
 * The address consists of four decimal numbers from 0 to 255, separated by dots. Leading zeros do not make a
 * number octal, and there may be any number of them within the 15 characters: "010.001.000.001" is 10.1.0.1.
 * Spaces and signs are not allowed. value must not be NULL. The function prints nothing.
 */
OSTREL_API int TcmValidateIPAddress(const char* value);

/*
 * TcmValidateMACaddress: an IEEE 802 MAC address of 17 characters, written as six octets of two hexadecimal
 * digits each, in either case, separated by ":".
 *
 * NULL is invalid. A value that does not have 17 characters is invalid, and nothing is printed. If the first
 * fault in a value of 17 characters is a wrong character where a ":" is required, that character is written
 * to standard output, without a newline and without a flush. Nothing else is printed.
 */
OSTREL_API int TcmValidateMACaddress(const char* value);

/*
 * isValidOrdinaryMACAddress: an individual MAC address, in the notation of TcmValidateMACaddress.
 *
 * NULL is invalid. Like TcmValidateMACaddress, this function writes a wrong separator to standard output, and
 * prints nothing if the value does not have 17 characters.
 *
 * If the group bit (I/G, the lowest bit of the first octet, IEEE 802) is set, as in every multicast address
 * and in the broadcast address, "Broadcasting MAC address, invalid.\n" is printed, without a flush, and the
 * address is invalid. This bit is tested before any character after the first octet is examined.
 * "00:00:00:00:00:00" is valid.
 */
OSTREL_API int isValidOrdinaryMACAddress(const char* value);

#endif
