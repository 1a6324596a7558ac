/*
 * Checks for the fields of a static route (layer-3 forwarding).
 *
 * value is a NUL-terminated byte string of any length and must not be NULL; no check changes it. Every check
 * returns 0 or OSTREL_INVALID_VALUE. A check that refuses a value writes the line shown below to standard
 * output and flushes all output streams. The first %s in the line is the name of the check. A check that
 * accepts a value prints nothing. Numbers are read with atoi: a string without a number is read as 0, and
 * characters after the digits are ignored.
 */
#ifndef OSTREL_L3FORWARDING_CHECK_H
#define OSTREL_L3FORWARDING_CHECK_H

#include <ostrel/api.h>

/*
 * L3FORWARDING_check_interface: 1 to 256 bytes of any kind.
 *
 * On refusal, prints "Error in %s: Invalid interface value\n\n".
 */
OSTREL_API int L3FORWARDING_check_interface(const char* value);

/*
 * L3FORWARDING_check_IP_address_and_mask: a destination address or a subnet mask, written as an IPv4 address
 * (see TcmValidateIPAddress) that does not begin with the characters "0.0". Consequently, "0.0.0.0" and
 * "0.0.1.0" are refused, but "00.0.0.0" is not.
 *
 * On refusal, prints "Error in %s: Invalid destination IP address or subnet mask:%s\n" with the value.
 */
OSTREL_API int L3FORWARDING_check_IP_address_and_mask(const char* value);

/*
 * L3FORWARDING_check_ForwardingType: "Default", "Network" or "Host", in any mix of upper and lower case.
 *
 * On refusal, prints "Error in %s: Invalid type:%s\n" with the value.
 */
OSTREL_API int L3FORWARDING_check_ForwardingType(const char* value);

/*
 * L3FORWARDING_check_ForwardingMetric: a number of -1 or more.
 *
 * On refusal, prints "Error in %s: Invalid metric:%s, RANGE >=%d\n" with the value and -1.
 */
OSTREL_API int L3FORWARDING_check_ForwardingMetric(const char* value);

/*
 * L3FORWARDING_check_MTU: an MTU of 1 to 1540 bytes.
 *
 * On refusal, prints "Error in %s: Invalid MTU:%s, RANGE[%d, %d]\n" with the value, 1 and 1540.
 */
OSTREL_API int L3FORWARDING_check_MTU(const char* value);

/*
 * L3FORWARDING_check_forwarding_policy: a number of -1 or more.
 *
 * On refusal, prints "Error in %s: Invalid forwarding policy:%s, RANGE >= -1\n" with the value.
 */
OSTREL_API int L3FORWARDING_check_forwarding_policy(const char* value);

#endif
