/*
 * LAN checks: edits of lists.
 *
 * Read <ostrel/lan_check.h> first, for what all LAN checks have in common.
 */
#ifndef OSTREL_LAN_CHECK_LIST_EDITING_H
#define OSTREL_LAN_CHECK_LIST_EDITING_H

#include <ostrel/api.h>

/*
 * LAN_check_add_allowedMACAddress: adds to the list of the stations that are allowed on the LAN; to an empty
 * one it copies macAddress WITHOUT A BOUND AND WITHOUT A TERMINATOR.
 *
 * macAddress:  one MAC address of 17 characters, or several with one separator character between them. Only
 *              the length is judged, 18 times the number of addresses less 1, and only when the list is not
 *              empty.
 * allowedList: the list, in a buffer of the caller's of at least 161 bytes: 160 characters and the
 *              terminator. When it is empty, macAddress is copied into it as it is, of whatever length: the
 *              buffer must be filled with zeros and have at least one byte more than macAddress. Otherwise
 *              ",", macAddress and a terminator are appended. Only an answer of 0 changes the buffer.
 *
 * 0; OSTREL_INVALID: either pointer is NULL, silently; or, tested in this order,
 *   macAddress stands anywhere in the list (the empty one always does), with
 *     "Error in %s: Add existed mac address: %s to %s\n\n" (the address, the list);
 *   the length, with "Error in %s: Add mac address invalid length: %s\n\n" (the address);
 *   the lengths of both together are 160 or more, with
 *     "Error in %s: Add mac address length %d will out of buffer size %d\n\n" (that sum, 160).
 */
OSTREL_API int LAN_check_add_allowedMACAddress(const char* macAddress, char* allowedList);

/*
 * LAN_check_add_dns_servers: adds one or two DNS servers ("first,second") to a list of one or two.
 *
 * newServers:      must not be NULL unless the existing list is empty. Not validated.
 * existingServers: may be NULL, which is the empty list; to that everything can be added,
 *                  and nothing is printed.
 *
 * Only the first "," splits a list. A list that holds a "," prints, and flushes, a line, although nothing is
 * refused: "Error in %s: Existed dns servers: %s and %s\n\n" and
 * "Error in %s: New dns servers: %s and %s\n\n", each with the second server before the first.
 *
 * 0; OSTREL_REPEATED, without a line of its own: one of two new servers equals one of the existing; or the
 * single new one equals the whole existing list, so that it is never a repetition of one of two.
 */
OSTREL_API int LAN_check_add_dns_servers(const char* newServers, const char* existingServers);

/*
 * LAN_check_delete_dns_server: whether a DNS server may be deleted from a list of one or two.
 *
 * The server may be deleted when it equals the text after the list's first ",", or when it is as long as the
 * first (or only) server AND DIFFERS from it. So the first server itself is not found unless it is the second
 * too; nor is an address of another length that is not the second, and in an empty list none is.
 *
 * 0; OSTREL_INVALID_VALUE: serverAddress is no IPv4 address (see TcmValidateIPAddress), with
 *   "Error in %s: Not a valid IP addr: %s\n\n" (the address);
 * OSTREL_NOT_IN_LIST, with
 *   "Error in %s: Can't find the IP addr: %s in existed servers:%s\n\n" (the address, the list).
 */
OSTREL_API int LAN_check_delete_dns_server(const char* serverAddress, const char* existingServers);

#endif
