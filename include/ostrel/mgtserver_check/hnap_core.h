/*
 * Checks for the HNAP core.
 *
 * <ostrel/mgtserver_check.h> describes what these checks have in common.
 */
#ifndef OSTREL_MGTSERVER_CHECK_HNAP_CORE_H
#define OSTREL_MGTSERVER_CHECK_HNAP_CORE_H

#include <ostrel/api.h>

/*
 * HNAPCORE_check_username: the administrator's name, 1 to 16 bytes from CHARSET_LATIN1_PRINTABLE.
 *
 * Returns what ValidateString returns: 0, OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER. If
 * that is not 0, prints "Error in %s: Error max allowed number:%s\n\n" with the value, although the value is
 * not a number.
 */
OSTREL_API int HNAPCORE_check_username(const char* value);

/*
 * HNAPCORE_check_timezone: "UTC" in any mix of upper and lower case, followed by any text. Prints
 * nothing.
 *
 * offset_out: a caller-owned buffer that receives the text after "UTC", or "+00:00" if there is none, and a
 *             terminator. It must have room for both and be at least 7 bytes long. The text after "UTC" is
 *             not examined. The buffer is unchanged on failure and must not overlap the value.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int HNAPCORE_check_timezone(const char* value, char* offset_out);

/*
 * HNAPCORE_check_locale: a locale of the user interface (RFC 5646 tag): en-us, fr-ca, fr-fr, de-de, es-es,
 * it-it, nl-nl, sv-se, ar-sa, pl-pl or th-th, in any mix of upper and lower case. Prints nothing.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int HNAPCORE_check_locale(const char* value);

#endif
