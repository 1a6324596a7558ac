/*
 * Checks for the parameters of the WAN connection (PPP, RFC 1661; PPPoE, RFC 2516).
 *
 * value is a NUL-terminated byte string of any length and must not be NULL; no check changes it. A check that
 * refuses a value writes one line to standard output and flushes all output streams. The line begins with
 * "Error in <name of the check>: " and ends in two newlines. A check that accepts a value prints nothing.
 */
#ifndef OSTREL_PPP_CHECK_H
#define OSTREL_PPP_CHECK_H

#include <ostrel/api.h>

/*
 * PPP_check_connection_type: exactly "IP_Routed".
 *
 * Returns 0, or prints "Error in %s: Error wan connection type:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int PPP_check_connection_type(const char* value);

/*
 * PPP_check_user_name: a user name that TcmValidatePPPUsername accepts, of any account type.
 *
 * Returns what TcmValidatePPPUsername returns: 0, OSTREL_TOO_SHORT, OSTREL_TOO_LONG,
 * OSTREL_FORBIDDEN_CHARACTER or OSTREL_INVALID_VALUE. If that is not 0, prints
 * "Error in %s: Error ppp user name:%s\n\n" with the value.
 */
OSTREL_API int PPP_check_user_name(const char* value);

/*
 * PPP_check_tonline_password: the password of a T-Online account, 1 to 8 bytes from CHARSET_LATIN1_PRINTABLE.
 *
 * Returns 0, or prints "Error in %s: Error ppp T-Online password:%s\n\n" with the value and returns
 * OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int PPP_check_tonline_password(const char* value);

/*
 * PPP_check_non_tonline_password: the password of any other provider's account, as checked by
 * TcmValidatePPPPassword.
 *
 * Returns 0, or prints "Error in %s: Error none T-Online ppp password:%s\n\n" with the value and returns
 * OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int PPP_check_non_tonline_password(const char* value);

/*
 * PPP_check_pppoe_service_name: any value except the empty one.
 *
 * Returns 0, or prints "Error in %s: Error ppp service name:%s\n\n" with the value and returns OSTREL_EMPTY.
 */
OSTREL_API int PPP_check_pppoe_service_name(const char* value);

/*
 * PPP_check_connection_trigger: exactly "OnDemand" or "AlwaysOn".
 *
 * Returns 0, or prints "Error in %s: Error connection trigger:%s\n\n" with the value and returns OSTREL_EMPTY
 * for the empty value or OSTREL_INVALID_VALUE for any other.
 */
OSTREL_API int PPP_check_connection_trigger(const char* value);

/*
 * PPP_check_idle_disconnect_time: any value except the empty one; it is not read as a number.
 *
 * Returns 0, or prints "Error in %s: Error disconnect time:%s\n\n" with the value and returns OSTREL_EMPTY.
 */
OSTREL_API int PPP_check_idle_disconnect_time(const char* value);

/*
 * PPP_check_route_protocol_rx: exactly "Off".
 *
 * Returns 0, or prints "Error in %s: Error Rx route protocol:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int PPP_check_route_protocol_rx(const char* value);

/*
 * PPP_check_shaping_rate: a number of -1 or more as read by atoi; a string without a number is read as 0, so
 * the empty value is accepted. The host defines the unit.
 *
 * Returns 0, or prints "Error in %s: Error shaping rate:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int PPP_check_shaping_rate(const char* value);

/*
 * PPP_check_shaping_burst_size: a number of 0 or more, read in the same way as a shaping rate. Unlike a rate,
 * it cannot be -1. The host defines the unit.
 *
 * Returns 0, or prints "Error in %s: Error shaping burst size:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int PPP_check_shaping_burst_size(const char* value);

#endif
