/*
 * Checks for the LAN interface, the DHCP service and other LAN settings.
 *
 * <ostrel/lan_check.h> describes what all LAN checks have in common.
 */
#ifndef OSTREL_LAN_CHECK_HOST_CONFIGURATION_H
#define OSTREL_LAN_CHECK_HOST_CONFIGURATION_H

#include <ostrel/api.h>

/*
 * LAN_check_ipinterface_enabled: exactly "1"; the interface cannot be disabled.
 *
 * Returns 0, or prints "Error in %s: Error ip interface enabled:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int LAN_check_ipinterface_enabled(const char* value_p);

/*
 * LAN_check_ip_router: the gateway's own address, as checked by TcmValidateIPRouter.
 *
 * Returns 0, or prints "Error in %s: Error ip interface IP:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int LAN_check_ip_router(const char* value_p);

/*
 * LAN_check_interface_subnet_mask: exactly "255.255.255.0". LAN_check_subnet_mask also allows other masks.
 *
 * Returns 0, or prints "Error in %s: Error ip interface subnet mask:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int LAN_check_interface_subnet_mask(const char* value_p);

/*
 * LAN_check_interface_addr_type: exactly "Static".
 *
 * Returns 0, or prints "Error in %s: Error ip interface addressing type:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int LAN_check_interface_addr_type(const char* value_p);

/*
 * LAN_check_domain_name: a name that TcmValidateRouterName accepts.
 *
 * Returns 0, or prints "Error in %s: Error domain name:%s\n\n" with the value and returns OSTREL_TOO_SHORT,
 * OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int LAN_check_domain_name(const char* value_p);

/*
 * LAN_check_dhcp_addr_range: the address pool of the DHCP server, as checked by TcmValidateAddressRange.
 *
 * Always prints "Info in %s: Check dhcp addr range: start ip%s, end ip:%s, lan ip:%s\n\n" with the three
 * arguments, and flushes all output streams.
 *
 * Returns 0, or prints "Error in %s: Error dhcp addr range: start ip%s, end ip:%s\n\n" with startAddress and
 * endAddress, and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int LAN_check_dhcp_addr_range(const char* startAddress, const char* endAddress,
                                         const char* lanAddress);

/*
 * LAN_check_dns_servers: the DNS servers that the DHCP server offers, as checked by TcmValidateofferDNS.
 *
 * Returns 0, or prints "Error in %s: Error dns server:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int LAN_check_dns_servers(const char* value_p);

/*
 * LAN_check_dhcp_reserved_addr: the addresses reserved for certain stations, as checked by
 * TcmValidateReservedAddress.
 *
 * Always prints "Info in %s: Dhcp reserved addr: %s, lan ip:%s\n\n" with both arguments, and flushes all
 * output streams.
 *
 * Returns 0, or prints "Error in %s: Error dhcp reserved addr: %s\n\n" with the list and returns
 * OSTREL_INVALID_VALUE if an item is in another subnet, or OSTREL_REPEATED.
 */
OSTREL_API int LAN_check_dhcp_reserved_addr(const char* reservedList, const char* lanAddress);

/*
 * LAN_check_config_password: the password of the configuration pages, as checked by
 * TcmValidateLANConfigPassword.
 *
 * Returns 0, or prints "Error in %s: Error config password:%s\n\n" with the value and returns
 * OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int LAN_check_config_password(const char* value_p);

/*
 * LAN_check_dhcp_lease_time: accepts every value without reading it.
 *
 * Returns 0 for every string. For the pointer with all bits set, which cannot point to a string, prints
 * "Error in %s: Error dhcp lease time:%s\n\n" with that pointer as the value and returns OSTREL_INVALID.
 */
OSTREL_API int LAN_check_dhcp_lease_time(const char* value_p);

/*
 * LAN_check_use_allocated_wan: any value EXCEPT exactly "Normal", "UseAllocatedSubnet" or "Passthrough". The
 * empty value is accepted.
 *
 * Returns 0, or prints "Error in %s: Error use allocated wan:%s\n\n" with the value and returns
 * OSTREL_INVALID.
 */
OSTREL_API int LAN_check_use_allocated_wan(const char* value_p);

/*
 * LAN_check_associated_connection: at most 255 bytes of any kind.
 *
 * Returns 0, or prints "Error in %s: Error associated_connection length:%s\n\n" with the value and returns
 * OSTREL_INVALID.
 */
OSTREL_API int LAN_check_associated_connection(const char* value_p);

/*
 * LAN_check_passthrough_lease: a number from 0 to 65535 as read by atoi; a string without a number is read
 * as 0. The host defines the unit.
 *
 * Returns 0, or prints "Error in %s: Error passthrough lease:%s\n\n" with the value and returns
 * OSTREL_INVALID.
 */
OSTREL_API int LAN_check_passthrough_lease(const char* value_p);

/* LAN_check_passthrough_MAC_address: ignores the value, which may be NULL, prints nothing and returns 0. */
OSTREL_API int LAN_check_passthrough_MAC_address(const char* value);

/*
 * LAN_check_subnet_mask: exactly "255.255.255." followed by 0, 128, 192, 224, 240, 248 or 252.
 *
 * Returns 0, or prints "Error in %s: Error ip interface subnet mask:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int LAN_check_subnet_mask(const char* value_p);

/*
 * LAN_check_cis_dev_name: 1 to 15 characters from CHARSET_CIS_NAME. The first must be a letter.
 *
 * Returns 0, or the code of the first test that fails, after printing its line:
 * OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER (also for "_"):
 *   "Error in %s: Error dev name:%s\n\n" with the value;
 * OSTREL_INVALID: the first character is a space, a digit or "-":
 *   "Error in %s: Error domain name prefix:%s\n\n" with the value.
 */
OSTREL_API int LAN_check_cis_dev_name(const char* value_p);

#endif
