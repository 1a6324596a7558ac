/*
 * LAN checks: the gateway's interface on the LAN, its DHCP service (RFC 2131), and edits of its lists.
 *
 * Values are NUL-terminated byte strings of any length; only LAN_check_add_allowedMACAddress changes one. A
 * check that refuses a value writes one line to standard output, beginning "Error in <its own name>: " and
 * ending in two line breaks, and flushes all output streams. Unless it is stated here, an accepted value
 * prints nothing.
 *
 * Each check that has one argument asserts, save LAN_check_passthrough_MAC_address: NULL is reported through
 * the C library's assertion hook, in every build type, and ends the process: the condition is
 * "value_p != ((void *)0)", the module "lan_check", the function the check, the line that of the source. A
 * check that has several arguments does not assert, and none of them may be NULL unless stated.
 */
#ifndef OSTREL_LAN_CHECK_H
#define OSTREL_LAN_CHECK_H

#include <ostrel/api.h>

/*
 * LAN_check_ipinterface_enabled: exactly "1"; the interface cannot be disabled.
 *
 * 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface enabled:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_ipinterface_enabled(const char* value_p);

/*
 * LAN_check_ip_router: the gateway's own address, see TcmValidateIPRouter.
 *
 * 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface IP:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_ip_router(const char* value_p);

/*
 * LAN_check_interface_subnet_mask: exactly "255.255.255.0". LAN_check_subnet_mask allows more.
 *
 * 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface subnet mask:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_interface_subnet_mask(const char* value_p);

/*
 * LAN_check_interface_addr_type: exactly "Static".
 *
 * 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface addressing type:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_interface_addr_type(const char* value_p);

/*
 * LAN_check_domain_name: a name that TcmValidateRouterName accepts.
 *
 * 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, with
 *   "Error in %s: Error domain name:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_domain_name(const char* value_p);

/*
 * LAN_check_dhcp_addr_range: the pool of the DHCP server, see TcmValidateAddressRange.
 *
 * Always prints, and flushes, "Info in %s: Check dhcp addr range: start ip%s, end ip:%s, lan ip:%s\n\n"
 * (start, end, LAN address).
 *
 * 0; OSTREL_INVALID_VALUE, with "Error in %s: Error dhcp addr range: start ip%s, end ip:%s\n\n"
 * (start, end).
 */
OSTREL_API int LAN_check_dhcp_addr_range(const char* startAddress, const char* endAddress,
                                         const char* lanAddress);

/*
 * LAN_check_dns_servers: the DNS servers that the DHCP server offers, see TcmValidateofferDNS.
 *
 * 0; OSTREL_INVALID_VALUE, with "Error in %s: Error dns server:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_dns_servers(const char* value_p);

/*
 * LAN_check_dhcp_reserved_addr: the addresses kept for certain stations, see TcmValidateReservedAddress.
 *
 * Always prints, and flushes, "Info in %s: Dhcp reserved addr: %s, lan ip:%s\n\n" (both arguments).
 *
 * 0; OSTREL_INVALID_VALUE: an item in another subnet; OSTREL_REPEATED; both with
 *   "Error in %s: Error dhcp reserved addr: %s\n\n" (the list).
 */
OSTREL_API int LAN_check_dhcp_reserved_addr(const char* reservedList, const char* lanAddress);

/*
 * LAN_check_config_password: the password of the configuration pages, see TcmValidateLANConfigPassword.
 *
 * 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, with
 *   "Error in %s: Error config password:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_config_password(const char* value_p);

/*
 * LAN_check_dhcp_lease_time: every value; it is not read as a number, nor at all.
 *
 * 0. The address with all bits set, where no string can be, is refused: OSTREL_INVALID, with
 *   "Error in %s: Error dhcp lease time:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_dhcp_lease_time(const char* value_p);

/*
 * LAN_check_use_allocated_wan: anything BUT exactly "Normal", "UseAllocatedSubnet" or "Passthrough"; the
 * empty value is accepted.
 *
 * 0; OSTREL_INVALID, with "Error in %s: Error use allocated wan:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_use_allocated_wan(const char* value_p);

/*
 * LAN_check_associated_connection: at most 255 bytes of any kind.
 *
 * 0; OSTREL_INVALID, with "Error in %s: Error associated_connection length:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_associated_connection(const char* value_p);

/*
 * LAN_check_passthrough_lease: a number of 0 to 65535 as atoi reads it; text without a number is 0.
 * What it counts is the host's affair.
 *
 * 0; OSTREL_INVALID, with "Error in %s: Error passthrough lease:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_passthrough_lease(const char* value_p);

/* LAN_check_passthrough_MAC_address: everything, NULL included. 0, and nothing is printed. */
OSTREL_API int LAN_check_passthrough_MAC_address(const char* value);

/*
 * LAN_check_subnet_mask: exactly "255.255.255." and 0, 128, 192, 224, 240, 248 or 252.
 *
 * 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface subnet mask:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_subnet_mask(const char* value_p);

/*
 * LAN_check_cis_dev_name: 1 to 15 characters of CHARSET_CIS_NAME, of which the first is a letter.
 *
 * 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER ("_" too), with
 *   "Error in %s: Error dev name:%s\n\n" (the value);
 * OSTREL_INVALID: the first character is a blank, a digit or "-", with
 *   "Error in %s: Error domain name prefix:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_cis_dev_name(const char* value_p);

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
