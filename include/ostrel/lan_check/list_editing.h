/*
 * Checks for changes to the lists of MAC addresses and DNS servers on the LAN.
 *
 * <ostrel/lan_check.h> describes what all LAN checks have in common.
 */
#ifndef OSTREL_LAN_CHECK_LIST_EDITING_H
#define OSTREL_LAN_CHECK_LIST_EDITING_H

#include <ostrel/api.h>

/*
 * LAN_check_add_allowedMACAddress: adds one or more stations to the list of stations that are allowed on the
 * LAN. If the list is empty, macAddress is copied into it WITHOUT A BOUNDS CHECK AND WITHOUT A TERMINATOR.
 *
 * macAddress:  one MAC address of 17 characters, or several with one character between them. Their form is
 *              not validated. If the list is not empty, the length of macAddress must be 18 times the number
 *              of addresses, minus 1.
 * allowedList: the list, in a caller-owned buffer of at least 161 bytes: 160 characters and the terminator.
 *              If it is empty, macAddress is copied into it regardless of its length, so the buffer must be
 *              filled with zeros and be at least one byte longer than macAddress. Otherwise ",", macAddress
 *              and a terminator are appended. The buffer changes only if 0 is returned.
 *
 * Returns 0 or OSTREL_INVALID. If either pointer is NULL, returns OSTREL_INVALID and prints nothing.
 * Otherwise, prints the line of the first test that fails:
 *   macAddress occurs anywhere in the list (the empty string always does):
 *     "Error in %s: Add existed mac address: %s to %s\n\n" with the address and the list;
 *   the length of macAddress is wrong:
 *     "Error in %s: Add mac address invalid length: %s\n\n" with the address;
 *   macAddress and the list together have 160 bytes or more:
 *     "Error in %s: Add mac address length %d will out of buffer size %d\n\n" with their length and 160.
 */
OSTREL_API int LAN_check_add_allowedMACAddress(const char* macAddress, char* allowedList);

/*
 * LAN_check_add_dns_servers: checks whether one or two DNS servers ("first,second") may be added to a list of
 * one or two. Neither list is changed.
 *
 * newServers:      must not be NULL unless the existing list is empty. It is not validated.
 * existingServers: may be NULL, which means the empty list. Anything may be added to the empty list, and
 *                  nothing is printed.
 *
 * A list is split only at its first ",". For each list that contains a ",", a line is printed and flushed,
 * although nothing is refused: "Error in %s: Existed dns servers: %s and %s\n\n" for the existing list and
 * "Error in %s: New dns servers: %s and %s\n\n" for the new one, each with the second server before the
 * first.
 *
 * Returns OSTREL_REPEATED if either of two new servers equals an existing one, or if a single new server
 * equals the whole existing list; otherwise returns 0. No further line is printed in either case. A single
 * new server is therefore never reported as repeated if two servers exist.
 */
OSTREL_API int LAN_check_add_dns_servers(const char* newServers, const char* existingServers);

/*
 * LAN_check_delete_dns_server: checks whether a DNS server may be deleted from a list of one or two.
 *
 * The server may be deleted if it equals the text after the first "," in the list, or if it is as long as the
 * first (or only) server AND DIFFERS from it. Consequently, the first server itself is found only if it is
 * also the second, and an address of a different length only if it is the second. In an empty list, no server
 * is found.
 *
 * Returns 0, or the code of the first test that fails, after printing its line:
 * OSTREL_INVALID_VALUE: serverAddress is not an IPv4 address (see TcmValidateIPAddress):
 *   "Error in %s: Not a valid IP addr: %s\n\n" with the address;
 * OSTREL_NOT_IN_LIST: the server is not found:
 *   "Error in %s: Can't find the IP addr: %s in existed servers:%s\n\n" with the address and the list.
 */
OSTREL_API int LAN_check_delete_dns_server(const char* serverAddress, const char* existingServers);

#endif
