/*
 * Port mapping checks: the parameters of forwarding a WAN port to a host on the LAN.
 *
 * Only permanent mappings of one external port, open to every remote host, are supported. Values are
 * NUL-terminated byte strings of any length; no check changes them. A check that refuses a value writes the
 * stated lines to standard output and flushes all output streams after each. An accepted value prints
 * nothing. Only PORTMAPPING_check_port_available asserts: in every build type the C library's assertion hook
 * reports NULL and ends the process; the condition is "value_p != ((void *)0)", the module
 * "port_mapping_check", the line that of the source.
 */
#ifndef OSTREL_PORT_MAPPING_CHECK_H
#define OSTREL_PORT_MAPPING_CHECK_H

#include <ostrel/api.h>

/*
 * PORTMAPPING_check_remote_host: NULL or the empty value, which mean every remote host.
 *
 * Returns 0, or prints "Error in %s: The remote host should be empty\n" and returns
 * OSTREL_REMOTE_HOST_NOT_WILDCARD.
 */
OSTREL_API int PORTMAPPING_check_remote_host(const char* value_p);

/*
 * PORTMAPPING_check_external_port: a port that PARAM_check_port accepts, and not the wildcard.
 *
 * Returns 0; OSTREL_WILDCARD_EXTERNAL_PORT: NULL or the empty value, with
 *   "Error in %s: The remote host should not be wildcard\n" (the port is meant);
 * OSTREL_OUT_OF_RANGE, with PARAM_check_port's line under PARAM_check_port's name.
 */
OSTREL_API int PORTMAPPING_check_external_port(const char* value_p);

/*
 * PORTMAPPING_check_port_available: a WAN port that the gateway does not reserve for its own services.
 *
 * port:     the number as atoi reads it; text without a number is port 0, which is free. With
 *           protocol 0 or 1 it is asserted, under the name is_port_reserved or is_wan_udp_port_available;
 *           with any other protocol it may be NULL.
 * protocol: 0 for TCP, 1 for UDP; with any other number every port is accepted.
 *
 * Reserved are the TCP ports 80, 161, 443, 1723, 1728, 6667 and 7547, and the UDP ports 161, 5060, and 54000
 * to 54999 for the media of the voice service.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with two lines, the port in both:
 *   "Error in is_port_reserved: The port:%s is reserved\n" or
 *   "Error in is_wan_udp_port_available: The udp port:%s is reserved sip rtp ports\n", and then
 *   "Error in %s: Error port mapping external port:%s\n\n".
 */
OSTREL_API int PORTMAPPING_check_port_available(const char* port, int protocol);

/*
 * PORTMAPPING_check_description: a description that TcmValidatePortMappingDescription accepts: 1 to 32
 * characters, each of 0x20 to 0x7E. value_p must not be NULL.
 *
 * Returns 0, or prints "Error in %s: Error port mapping description:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int PORTMAPPING_check_description(const char* value_p);

/*
 * PORTMAPPING_check_lease_duration: a lease of 0 seconds as atoi reads it, which means a permanent mapping;
 * text without a number is 0. value_p must not be NULL.
 *
 * Returns 0, or prints "Error in %s: The port mapping lease should be zero\n" and returns
 * OSTREL_LEASE_NOT_PERMANENT.
 */
OSTREL_API int PORTMAPPING_check_lease_duration(const char* value_p);

#endif
