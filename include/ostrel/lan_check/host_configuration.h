/*
 * LAN checks: the interface, the DHCP service and other settings.
 *
 * <ostrel/lan_check.h> describes what all LAN checks have in common.
 */
#ifndef OSTREL_LAN_CHECK_HOST_CONFIGURATION_H
#define OSTREL_LAN_CHECK_HOST_CONFIGURATION_H

#include <ostrel/api.h>

/*
 * LAN_check_ipinterface_enabled: exactly "1"; the interface cannot be disabled.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface enabled:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_ipinterface_enabled(const char* value_p);

/*
 * LAN_check_ip_router: the gateway's own address, see TcmValidateIPRouter.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface IP:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_ip_router(const char* value_p);

/*
 * LAN_check_interface_subnet_mask: exactly "255.255.255.0". LAN_check_subnet_mask allows more.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface subnet mask:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_interface_subnet_mask(const char* value_p);

/*
 * LAN_check_interface_addr_type: exactly "Static".
 *
 * Returns 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface addressing type:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_interface_addr_type(const char* value_p);

/*
 * LAN_check_domain_name: a name that TcmValidateRouterName accepts.
 *
 * Returns 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, with
 *   "Error in %s: Error domain name:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_domain_name(const char* value_p);

/*
 * LAN_check_dhcp_addr_range: the pool of the DHCP server, see TcmValidateAddressRange.
 *
 * Always prints, and flushes, "Info in %s: Check dhcp addr range: start ip%s, end ip:%s, lan ip:%s\n\n"
 * (start, end, LAN address).
 *
 * Returns 0; OSTREL_INVALID_VALUE, with "Error in %s: Error dhcp addr range: start ip%s, end ip:%s\n\n"
 * (start, end).
 */
OSTREL_API int LAN_check_dhcp_addr_range(const char* startAddress, const char* endAddress,
                                         const char* lanAddress);

/*
 * LAN_check_dns_servers: the DNS servers that the DHCP server offers, see TcmValidateofferDNS.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with "Error in %s: Error dns server:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_dns_servers(const char* value_p);

/*
 * LAN_check_dhcp_reserved_addr: the addresses reserved for certain stations, see TcmValidateReservedAddress.
 *
 * Always prints, and flushes, "Info in %s: Dhcp reserved addr: %s, lan ip:%s\n\n" (both arguments).
 *
 * Returns 0; OSTREL_INVALID_VALUE: an item in another subnet; OSTREL_REPEATED; both with
 *   "Error in %s: Error dhcp reserved addr: %s\n\n" (the list).
 */
OSTREL_API int LAN_check_dhcp_reserved_addr(const char* reservedList, const char* lanAddress);

/*
 * LAN_check_config_password: the password of the configuration pages, see TcmValidateLANConfigPassword.
 *
 * Returns 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, with
 *   "Error in %s: Error config password:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_config_password(const char* value_p);

/*
 * LAN_check_dhcp_lease_time: accepts every value without reading it.
 *
 * Returns 0. Only the pointer with all bits set, where no string can be, is refused: OSTREL_INVALID, with
 *   "Error in %s: Error dhcp lease time:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_dhcp_lease_time(const char* value_p);

/*
 * LAN_check_use_allocated_wan: anything EXCEPT exactly "Normal", "UseAllocatedSubnet" or "Passthrough"; the
 * empty value is accepted.
 *
 * Returns 0; OSTREL_INVALID, with "Error in %s: Error use allocated wan:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_use_allocated_wan(const char* value_p);

/*
 * LAN_check_associated_connection: at most 255 bytes of any kind.
 *
 * Returns 0; OSTREL_INVALID, with "Error in %s: Error associated_connection length:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_associated_connection(const char* value_p);

/*
 * LAN_check_passthrough_lease: a number of 0 to 65535 as atoi reads it; text without a number is 0.
 * Its unit is left to the host.
 *
 * Returns 0; OSTREL_INVALID, with "Error in %s: Error passthrough lease:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_passthrough_lease(const char* value_p);

/* LAN_check_passthrough_MAC_address: always returns 0, also for NULL; the value is not read. Silent. */
OSTREL_API int LAN_check_passthrough_MAC_address(const char* value);

/*
 * LAN_check_subnet_mask: exactly "255.255.255." and 0, 128, 192, 224, 240, 248 or 252.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with "Error in %s: Error ip interface subnet mask:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_subnet_mask(const char* value_p);

/*
 * LAN_check_cis_dev_name: 1 to 15 characters of CHARSET_CIS_NAME, of which the first is a letter.
 *
 * Returns 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER ("_" too), with
 *   "Error in %s: Error dev name:%s\n\n" (the value);
 * OSTREL_INVALID: the first character is a space, a digit or "-", with
 *   "Error in %s: Error domain name prefix:%s\n\n" (the value).
 */
OSTREL_API int LAN_check_cis_dev_name(const char* value_p);

#endif
