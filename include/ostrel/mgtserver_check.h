/*
 * Management server, guest access, HNAP core.
 *
 * The value is a NUL-terminated byte string of any length; no check changes it. A check that prints writes
 * its line to standard output when it refuses a value, "%s" first being its own name unless stated, and then
 * flushes all output streams. "Asserts" means that a NULL value is reported through the C library's assertion
 * hook, in every build type, and ends the process: "value_p != ((void *)0)", module "mgtserver_check", the
 * line stated. Where that is not stated, there is no test and the value must not be NULL.
 */
#ifndef OSTREL_MGTSERVER_CHECK_H
#define OSTREL_MGTSERVER_CHECK_H

#include <ostrel/api.h>

/*
 * MGTSERVER_check_server_url: the URL of the management server, see TcmValidateServerURL.
 *
 * Asserts, line 41. 0; OSTREL_INVALID_VALUE, with "Error in %s: Error server url:%s\n\n" (the value).
 */
OSTREL_API int MGTSERVER_check_server_url(const char* value_p);

/*
 * MGTSERVER_check_firmware_url: the URL of a firmware image, see TcmValidatefirmwareURL.
 *
 * Asserts, line 75. 0; OSTREL_INVALID_VALUE, with "Error in %s: Error server url:%s\n\n" (the value), which
 * says "server url" here too.
 */
OSTREL_API int MGTSERVER_check_firmware_url(const char* value_p);

/*
 * MGTSERVER_check_server_password: at most 256 bytes of any kind; it may be empty.
 *
 * Asserts, line 105. 0; OSTREL_INVALID_VALUE, with "Error in %s: Error password:%s\n\n" (the value: the
 * password is printed).
 */
OSTREL_API int MGTSERVER_check_server_password(const char* value_p);

/*
 * MGTSERVER_check_conn_request_username, MGTSERVER_check_conn_request_password: the credentials of a
 * connection request: MGTSERVER_check_server_password, under whose name they print and assert.
 */
OSTREL_API int MGTSERVER_check_conn_request_username(const char* value_p);
OSTREL_API int MGTSERVER_check_conn_request_password(const char* value_p);

/*
 * MGTSERVER_check_periodic_inform: whether the client reports periodically: any value but the empty one.
 *
 * Asserts, line 135. 0; OSTREL_INVALID_VALUE, with "Error in %s: Error empty periodic inform\n\n".
 */
OSTREL_API int MGTSERVER_check_periodic_inform(const char* value_p);

/*
 * MGTSERVER_check_periodic_inform_time: a date-time, see TcmValidateTime; neither the empty value nor the
 * "unknown time" of TR-069, "0001-01-01T00:00:00Z", is one.
 *
 * Asserts, line 210. 0; OSTREL_INVALID_VALUE, with "Error in %s: Error periodic inform time:%s\n\n" (the
 * value).
 */
OSTREL_API int MGTSERVER_check_periodic_inform_time(const char* value_p);

/*
 * MGTSERVER_check_periodic_inform_interval: seconds between two reports, above 0 as atoi reads it: what
 * follows the digits is ignored, so "30abc" is accepted. No number that an int holds is too high; one that it
 * does not hold may be read as 0 or less, and is then refused.
 *
 * Asserts, line 240. 0; OSTREL_INVALID_VALUE, with "Error in %s: Invalite periodic inform interval\n\n".
 */
OSTREL_API int MGTSERVER_check_periodic_inform_interval(const char* value_p);

/*
 * GUESTACCESS_check_max_allowed_number: how many guests are allowed: 1 or 2 digits, above 0.
 *
 * 0; OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, as ValidateString, with
 * "Error in %s: Error max allowed number:%s\n\n" (the value). Where the number that atoi reads is not above
 * 0, "Error in %s: Error min allowed number:%s\n\n" (the value) is printed too, and OSTREL_INVALID_VALUE is
 * the answer whatever the fault before: "abc" and the empty value print both lines, "0" the second alone.
 */
OSTREL_API int GUESTACCESS_check_max_allowed_number(const char* value);

/*
 * GUESTACCESS_check_password: 4 to 32 characters of CHARSET_ALNUM.
 *
 * 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, as ValidateString, with
 * "Error in %s: Error max allowed number:%s\n\n" (the value), which speaks of a number here too.
 */
OSTREL_API int GUESTACCESS_check_password(const char* value);

/*
 * HNAPCORE_check_username: the administrator's name, 1 to 16 bytes of CHARSET_LATIN1_PRINTABLE.
 *
 * 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, as ValidateString, with
 * "Error in %s: Error max allowed number:%s\n\n" (the value), which speaks of a number here too.
 */
OSTREL_API int HNAPCORE_check_username(const char* value);

/*
 * HNAPCORE_check_timezone: "UTC" in any mixture of upper and lower case, and anything behind it. Silent.
 *
 * offset_out: the caller's buffer; receives what follows "UTC", or "+00:00" where nothing does, with the
 *             terminator. It must have room for 7 bytes, and for what follows "UTC" with its terminator.
 *             What follows "UTC" is not examined. Left as it is on failure; must not overlap the value.
 *
 * 0; OSTREL_INVALID.
 */
OSTREL_API int HNAPCORE_check_timezone(const char* value, char* offset_out);

/*
 * HNAPCORE_check_locale: a locale of the user interface, in any mixture of upper and lower case: en-us,
 * fr-ca, fr-fr, de-de, es-es, it-it, nl-nl, sv-se, ar-sa, pl-pl, th-th (tags of RFC 5646). Silent.
 *
 * 0; OSTREL_INVALID.
 */
OSTREL_API int HNAPCORE_check_locale(const char* value);

#endif
