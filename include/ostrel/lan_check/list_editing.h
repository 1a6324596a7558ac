/*
 * LAN checks: edits of lists.
 *
 * <ostrel/lan_check.h> describes what all LAN checks have in common.
 */
#ifndef OSTREL_LAN_CHECK_LIST_EDITING_H
#define OSTREL_LAN_CHECK_LIST_EDITING_H

#include <ostrel/api.h>

/*
 * LAN_check_add_allowedMACAddress: adds to the list of the stations that are allowed on the LAN. Into an
 * empty list it copies macAddress WITHOUT A BOUNDS CHECK AND WITHOUT A TERMINATOR.
 *
 * macAddress:  one MAC address of 17 characters, or several separated by one character each. Only the length
 *              is judged, which must be 18 times the number of addresses minus 1, and only if the list is
 *              not empty.
 * allowedList: the list, in a caller-owned buffer of at least 161 bytes: 160 characters and the terminator.
 *              If it is empty, macAddress is copied into it whatever its length: the buffer must be filled
 *              with zeros and have at least one byte more than macAddress. Otherwise ",", macAddress and a
 *              terminator are appended. The buffer changes only if 0 is returned.
 *
 * Returns 0; OSTREL_INVALID: either pointer is NULL, silently; or, tested in this order,
 *   macAddress occurs anywhere in the list (the empty text always does), with
 *     "Error in %s: Add existed mac address: %s to %s\n\n" (the address, the list);
 *   its length is wrong, with "Error in %s: Add mac address invalid length: %s\n\n" (the address);
 *   both together have 160 bytes or more, with
 *     "Error in %s: Add mac address length %d will out of buffer size %d\n\n" (their length, 160).
 */
OSTREL_API int LAN_check_add_allowedMACAddress(const char* macAddress, char* allowedList);

/*
 * LAN_check_add_dns_servers: adds one or two DNS servers ("first,second") to a list of one or two.
 *
 * newServers:      must not be NULL unless the existing list is empty. It is not validated.
 * existingServers: may be NULL, which is the empty list. Anything can be added to the empty list, and
 *                  nothing is printed.
 *
 * Only the first "," splits a list. For each list that contains a "," a line is printed and flushed, although
 * nothing is refused: "Error in %s: Existed dns servers: %s and %s\n\n" and
 * "Error in %s: New dns servers: %s and %s\n\n", each with the second server before the first.
 *
 * Returns 0; OSTREL_REPEATED, without a line of its own: one of two new servers equals an existing one, or a
 * single new server equals the whole existing list. So a single new server never repeats one of two.
 */
OSTREL_API int LAN_check_add_dns_servers(const char* newServers, const char* existingServers);

/*
 * LAN_check_delete_dns_server: whether a DNS server may be deleted from a list of one or two.
 *
 * The server may be deleted if it equals the text after the first "," of the list, or if it is as long as the
 * first (or only) server AND DIFFERS from it. So the first server itself is not found unless it is also the
 * second, nor is an address of another length that is not the second; in an empty list nothing is found.
 *
 * Returns 0; OSTREL_INVALID_VALUE: serverAddress is not an IPv4 address (see TcmValidateIPAddress), with
 *   "Error in %s: Not a valid IP addr: %s\n\n" (the address);
 * OSTREL_NOT_IN_LIST, with
 *   "Error in %s: Can't find the IP addr: %s in existed servers:%s\n\n" (the address, the list).
 */
OSTREL_API int LAN_check_delete_dns_server(const char* serverAddress, const char* existingServers);

#endif
