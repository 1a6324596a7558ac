/*
 * Checks for the branding of the web portal.
 *
 * value is a NUL-terminated byte string of any length; only Param_check_datetime_value accepts NULL. A check
 * that refuses a value writes one line to standard output and then flushes all output streams. The first %s
 * in the line is the name of the check.
 */
#ifndef OSTREL_BRANDING_CHECK_H
#define OSTREL_BRANDING_CHECK_H

#include <ostrel/api.h>

/*
 * The first eight checks limit only the length. They accept any bytes and the empty value.
 *
 * Each returns 0, or prints "Error in %s: The length of string :%s shoud not be less than %d\n" with the
 * value and the limit, and returns OSTREL_TOO_LONG. The printed limit is one more than the maximum accepted
 * length, so the message means "must be less than".
 */

/* Param_check_ispname_value: at most 31 bytes; the limit printed is 32. */
OSTREL_API int Param_check_ispname_value(const char* value);

/* Param_check_helpdesk_value: at most 63 bytes; the limit printed is 64. */
OSTREL_API int Param_check_helpdesk_value(const char* value);

/* Param_check_page_value: at most 255 bytes; the limit printed is 256. */
OSTREL_API int Param_check_page_value(const char* value);

/* Param_check_logo_value: at most 5459 bytes in the host's encoding; the limit printed is 5460. */
OSTREL_API int Param_check_logo_value(const char* value);

/* Param_check_logo_size_value: at most 4095 bytes; the limit printed is 4096. */
OSTREL_API int Param_check_logo_size_value(const char* value);

/* Param_check_server_value: at most 255 bytes; the limit printed is 256. */
OSTREL_API int Param_check_server_value(const char* value);

/* Param_check_login_value: at most 39 bytes; the limit printed is 40. */
OSTREL_API int Param_check_login_value(const char* value);

/* Param_check_pword_value: at most 29 bytes; the limit printed is 30. The password is printed. */
OSTREL_API int Param_check_pword_value(const char* value);

/*
 * Param_check_color_value: a colour, written as two hexadecimal digits in either case for each of red, green
 * and blue, without a leading "#".
 *
 * Returns 0, or the code of the first test that fails, after printing its line:
 * OSTREL_OUT_OF_RANGE: the length is not 6 bytes:
 *   "Error in %s: The length of color :%s shoud not be equal to %d\n" with the value and 6 (the message
 *   means "must be equal to");
 * OSTREL_WRONG_FORM: a byte is not a hexadecimal digit (the first such byte is reported):
 *   "Error in %s: color :%s contain invalid char %c\n" with the value and that byte, printed as is.
 */
OSTREL_API int Param_check_color_value(const char* value);

/*
 * Param_check_bool_value: "0" or "1".
 *
 * Returns 0, or prints "Error in %s: bool value :%s out of range\n" with the value and returns
 * OSTREL_OUT_OF_RANGE.
 */
OSTREL_API int Param_check_bool_value(const char* value);

/* Param_check_datetime_value: ignores the value, which may be NULL, prints nothing and returns 0. */
OSTREL_API int Param_check_datetime_value(const char* value);

#endif
