/*
 * Checks for guest access.
 *
 * <ostrel/mgtserver_check.h> describes what these checks have in common.
 */
#ifndef OSTREL_MGTSERVER_CHECK_GUEST_ACCESS_H
#define OSTREL_MGTSERVER_CHECK_GUEST_ACCESS_H

#include <ostrel/api.h>

/*
 * GUESTACCESS_check_max_allowed_number: the maximum number of guests, which must have 1 or 2 digits and be
 * greater than 0.
 *
 * Returns 0, or prints one or both of these lines and returns the code for the last one printed:
 * OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER, as ValidateString returns them:
 *   "Error in %s: Error max allowed number:%s\n\n" with the value;
 * OSTREL_INVALID_VALUE: the number that atoi reads is not greater than 0:
 *   "Error in %s: Error min allowed number:%s\n\n" with the value.
 * For "abc" and the empty value, both lines are printed; for "0", only the second.
 */
OSTREL_API int GUESTACCESS_check_max_allowed_number(const char* value);

/*
 * GUESTACCESS_check_password: 4 to 32 characters from CHARSET_ALNUM.
 *
 * Returns what ValidateString returns: 0, OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER. If
 * that is not 0, prints "Error in %s: Error max allowed number:%s\n\n" with the value, although the value is
 * not a number.
 */
OSTREL_API int GUESTACCESS_check_password(const char* value);

#endif
