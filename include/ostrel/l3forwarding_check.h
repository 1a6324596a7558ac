/*
 * Layer-3 forwarding checks: the fields of a static route.
 *
 * value is a NUL-terminated byte string of any length and must not be NULL; no check changes it. Every check
 * returns 0 or OSTREL_INVALID_VALUE. A check that refuses a value writes the stated line to standard output
 * and flushes all output streams. The first %s of the line is the name of the check. A check that accepts a
 * value prints nothing. Numbers are read with atoi: a string without a number is 0, and characters after the
 * digits are ignored.
 */
#ifndef OSTREL_L3FORWARDING_CHECK_H
#define OSTREL_L3FORWARDING_CHECK_H

#include <ostrel/api.h>

/*
 * L3FORWARDING_check_interface: 1 to 256 bytes of any kind.
 *
 * Refuses with "Error in %s: Invalid interface value\n\n".
 */
OSTREL_API int L3FORWARDING_check_interface(const char* value);

/*
 * L3FORWARDING_check_IP_address_and_mask: a destination address or a subnet mask: an IPv4 address (see
 * TcmValidateIPAddress) whose text does not begin with "0.0". So "0.0.0.0" and "0.0.1.0" are refused, and
 * "00.0.0.0" is not.
 *
 * Refuses with "Error in %s: Invalid destination IP address or subnet mask:%s\n" (the value).
 */
OSTREL_API int L3FORWARDING_check_IP_address_and_mask(const char* value);

/*
 * L3FORWARDING_check_ForwardingType: "Default", "Network" or "Host", in any mixture of upper and lower case.
 *
 * Refuses with "Error in %s: Invalid type:%s\n" (the value).
 */
OSTREL_API int L3FORWARDING_check_ForwardingType(const char* value);

/*
 * L3FORWARDING_check_ForwardingMetric: a number of -1 or more.
 *
 * Refuses with "Error in %s: Invalid metric:%s, RANGE >=%d\n" (the value, -1).
 */
OSTREL_API int L3FORWARDING_check_ForwardingMetric(const char* value);

/*
 * L3FORWARDING_check_MTU: an MTU of 1 to 1540 bytes.
 *
 * Refuses with "Error in %s: Invalid MTU:%s, RANGE[%d, %d]\n" (the value, 1, 1540).
 */
OSTREL_API int L3FORWARDING_check_MTU(const char* value);

/*
 * L3FORWARDING_check_forwarding_policy: a number of -1 or more.
 *
 * Refuses with "Error in %s: Invalid forwarding policy:%s, RANGE >= -1\n" (the value).
 */
OSTREL_API int L3FORWARDING_check_forwarding_policy(const char* value);

#endif
