/*
 * Checks for port mappings, which forward a WAN port to a host on the LAN.
 *
 * Only permanent mappings of one external port that are open to every remote host are supported. Values are
 * NUL-terminated byte strings of any length; no check changes them. A check that refuses a value writes the
 * lines shown below to standard output and flushes all output streams after each line. The first %s in a line
 * is the name of the check unless noted otherwise. A check that accepts a value prints nothing.
 *
 * Only PORTMAPPING_check_port_available asserts, in every build type, that its value is not NULL. For NULL,
 * the C library's assertion hook prints a message and ends the process. The message contains the condition
 * "value_p != ((void *)0)", the module "port_mapping_check" and the source line.
 */
#ifndef OSTREL_PORT_MAPPING_CHECK_H
#define OSTREL_PORT_MAPPING_CHECK_H

#include <ostrel/api.h>

/*
 * PORTMAPPING_check_remote_host: NULL or the empty value, both of which mean every remote host.
 *
 * Returns 0, or prints "Error in %s: The remote host should be empty\n" and returns
 * OSTREL_REMOTE_HOST_NOT_WILDCARD.
 */
OSTREL_API int PORTMAPPING_check_remote_host(const char* value_p);

/*
 * PORTMAPPING_check_external_port: a port that PARAM_check_port accepts and that is not the wildcard.
 *
 * Returns 0, or:
 * OSTREL_WILDCARD_EXTERNAL_PORT: the value is NULL or empty, after printing
 *   "Error in %s: The remote host should not be wildcard\n", in which "remote host" means the port;
 * OSTREL_OUT_OF_RANGE: PARAM_check_port refuses the port and prints its line under its own name.
 */
OSTREL_API int PORTMAPPING_check_external_port(const char* value_p);

/*
 * PORTMAPPING_check_port_available: a WAN port that the gateway does not reserve for its own services.
 *
 * port:     the number as read by atoi; a string without a number is read as port 0, which is not reserved.
 *           With protocol 0 or 1, a NULL port fails an assertion whose message names is_port_reserved or
 *           is_wan_udp_port_available, respectively; with any other protocol, port may be NULL.
 * protocol: 0 for TCP, 1 for UDP; with any other number, every port is accepted.
 *
 * The reserved ports are the TCP ports 80, 161, 443, 1723, 1728, 6667 and 7547, and the UDP ports 161, 5060,
 * and 54000 to 54999 (used for voice media).
 *
 * Returns 0, or prints two lines with the port and returns OSTREL_INVALID_VALUE. The first line contains the
 * name of the function that found the port to be reserved:
 *   "Error in is_port_reserved: The port:%s is reserved\n" or
 *   "Error in is_wan_udp_port_available: The udp port:%s is reserved sip rtp ports\n".
 * The second line contains the name of the check:
 *   "Error in %s: Error port mapping external port:%s\n\n".
 */
OSTREL_API int PORTMAPPING_check_port_available(const char* port, int protocol);

/*
 * PORTMAPPING_check_description: a description that TcmValidatePortMappingDescription accepts, with 1 to 32
 * characters, each from 0x20 to 0x7E. value_p must not be NULL.
 *
 * Returns 0, or prints "Error in %s: Error port mapping description:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int PORTMAPPING_check_description(const char* value_p);

/*
 * PORTMAPPING_check_lease_duration: a lease of 0 seconds, as read by atoi, for a permanent mapping; a
 * string without a number is read as 0. value_p must not be NULL.
 *
 * Returns 0, or prints "Error in %s: The port mapping lease should be zero\n" and returns
 * OSTREL_LEASE_NOT_PERMANENT.
 */
OSTREL_API int PORTMAPPING_check_lease_duration(const char* value_p);

#endif
