/*
 * Guest access.
 *
 * <ostrel/mgtserver_check.h> describes what these checks have in common.
 */
#ifndef OSTREL_MGTSERVER_CHECK_GUEST_ACCESS_H
#define OSTREL_MGTSERVER_CHECK_GUEST_ACCESS_H

#include <ostrel/api.h>

/*
 * GUESTACCESS_check_max_allowed_number: the number of guests that are allowed: 1 or 2 digits, above 0.
 *
 * Returns 0; OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, as ValidateString, with
 * "Error in %s: Error max allowed number:%s\n\n" (the value). If the number that atoi reads is not above
 * 0, "Error in %s: Error min allowed number:%s\n\n" (the value) is printed too, and OSTREL_INVALID_VALUE is
 * returned whatever the first fault was: "abc" and the empty value print both lines, "0" only the second.
 */
OSTREL_API int GUESTACCESS_check_max_allowed_number(const char* value);

/*
 * GUESTACCESS_check_password: 4 to 32 characters of CHARSET_ALNUM.
 *
 * Returns 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER, as ValidateString, with
 * "Error in %s: Error max allowed number:%s\n\n" (the value): the text says "number" here too.
 */
OSTREL_API int GUESTACCESS_check_password(const char* value);

#endif
