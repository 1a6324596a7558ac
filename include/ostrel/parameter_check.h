/*
 * Generic checks for common kinds of parameters.
 *
 * value_p is the value, a NUL-terminated byte string of any length; no check changes it. Where a line is
 * shown for a check, the check writes it to standard output when it refuses a value, and then flushes all
 * output streams. The line begins with "Error in <name of the check>: ". Output from a primitive that a check
 * calls is not flushed.
 *
 * Where a NULL value is documented to fail an assertion, the assertion is active in every build type. The C
 * library's assertion hook prints a message and ends the process. The message contains the condition
 * "value_p != ((void *)0)" unless noted otherwise, the module "parameter_check" and the name of the check. If
 * the comment on a check mentions neither an assertion nor a result for NULL, value_p must not be NULL.
 */
#ifndef OSTREL_PARAMETER_CHECK_H
#define OSTREL_PARAMETER_CHECK_H

#include <ostrel/api.h>

/*
 * Param_check_string_len: the length must be from min_len to max_len bytes. The limits are compared as signed
 * numbers.
 *
 * A NULL value fails an assertion whose condition is "((void *)0) != value_p". Returns 0, or the code of the
 * first test that fails, after printing its line:
 * OSTREL_TOO_SHORT:
 *   "Error in %s: The length of string:%s shoud not be less than %d\n" with the value and min_len;
 * OSTREL_TOO_LONG:
 *   "Error in %s: The length of string:%s shoud not be more than %d\n" with the value and max_len.
 * PARAM_check_string_len has unsigned limits and prints nothing.
 */
OSTREL_API int Param_check_string_len(const char* value_p, int min_len, int max_len);

/*
 * PARAM_check_port: a port number from 0 to 65535 as read by atoi. A string without a number is read as 0,
 * and characters after the digits are ignored, so "abc", "80abc" and the empty value are accepted.
 *
 * A NULL value fails an assertion. Returns 0, or prints "Error in %s: The port shoud be between 0~65535\n"
 * and returns OSTREL_OUT_OF_RANGE.
 */
OSTREL_API int PARAM_check_port(const char* value_p);

/*
 * PARAM_check_ip_addr: an IPv4 address, as checked by TcmValidateIPAddress. Prints nothing.
 *
 * Returns 0 or OSTREL_INVALID_VALUE.
 */
OSTREL_API int PARAM_check_ip_addr(const char* value_p);

/*
 * PARAM_check_Ordinary_MACAddress: the MAC address of one station, as checked by isValidOrdinaryMACAddress,
 * which may print without a flush.
 *
 * Returns 0 or OSTREL_INVALID_VALUE. NULL is invalid.
 */
OSTREL_API int PARAM_check_Ordinary_MACAddress(const char* value_p);

/*
 * PARAM_check_MACAddress: a MAC address, as checked by TcmValidateMACaddress, which may print without a
 * flush.
 *
 * Returns 0 or OSTREL_INVALID_VALUE. NULL is invalid.
 */
OSTREL_API int PARAM_check_MACAddress(const char* value_p);

/*
 * PARAM_check_transport_protocol: "TCP" or "UDP" in any mix of upper and lower case.
 *
 * Returns 0, or prints "Error in %s: The transport protocol:%s is error\n" with the value and returns
 * OSTREL_INVALID.
 */
OSTREL_API int PARAM_check_transport_protocol(const char* value_p);

/*
 * PARAM_get_protocol_from_name: returns the number of a protocol: 0 for "TCP", 1 for "UDP" and 2 for anything
 * else.
 *
 * Unlike PARAM_check_transport_protocol, it is case-sensitive: the result for "tcp" is 2. Prints nothing.
 */
OSTREL_API int PARAM_get_protocol_from_name(const char* value_p);

/*
 * PARAM_check_hexa_string: only hexadecimal digits, in either case. The empty value is valid. Prints nothing.
 *
 * A NULL value fails an assertion. Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int PARAM_check_hexa_string(const char* value_p);

/*
 * PARAM_check_printable_ascii_string: one or more bytes, each from 0x20 to 0x7E. Prints nothing.
 *
 * Returns 0 or OSTREL_INVALID. The empty value and NULL are invalid.
 */
OSTREL_API int PARAM_check_printable_ascii_string(const char* value_p);

/*
 * PARAM_check_provisioning_code: a provisioning code, as checked by TcmValidateProvisioningCode, which may
 * print without a flush.
 *
 * Returns 0 or OSTREL_INVALID_VALUE.
 */
OSTREL_API int PARAM_check_provisioning_code(const char* value_p);

/*
 * PARAM_check_ui2_value, PARAM_check_ui4_value: a two-byte and a four-byte unsigned integer, respectively.
 *
 * FOR A VALUE THAT BEGINS WITH A DIGIT, THEY NEVER RETURN. The empty value is accepted, and any other value
 * is refused.
 *
 * A NULL value fails an assertion. Both return 0, or print "Error in %s: The value %s is invalid\n" with the
 * value and return OSTREL_INVALID_VALUE. The lines for a number out of range,
 * "Error in %s: The value %s should be between [0,65536)\n" and
 * "Error in %s: The value %s should be between [0,4296967296)\n", are never printed.
 */
OSTREL_API int PARAM_check_ui2_value(const char* value_p);
OSTREL_API int PARAM_check_ui4_value(const char* value_p);

/*
 * PARAM_check_bool_value: exactly "0" or "1".
 *
 * A NULL value fails an assertion. Returns 0, or prints "Error in %s: The value %s out of range[0,1]\n" with
 * the value and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int PARAM_check_bool_value(const char* value_p);

/*
 * PARAM_check_bool_value_use_str: exactly "true" or "false", in lower case.
 *
 * A NULL value fails an assertion. Returns 0, or prints
 * "Error in %s: The value %s out of range[true, false]\n" with the value and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int PARAM_check_bool_value_use_str(const char* value_p);

/*
 * PARAM_check_number: min_len to max_len decimal digits. The limits are lengths, not values. Prints nothing.
 *
 * Returns what ValidateString returns: 0, OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int PARAM_check_number(const char* value_p, int min_len, int max_len);

/*
 * PARAM_check_num_range: decimal digits that form a number from min to max. The empty value is read as 0.
 * Prints nothing.
 *
 * Returns what ValidateNum returns: 0, OSTREL_FORBIDDEN_CHARACTER or OSTREL_OUT_OF_RANGE.
 */
OSTREL_API int PARAM_check_num_range(const char* value_p, int min, int max);

/*
 * PARAM_check_password: min_len to max_len characters from CHARSET_ALNUM. Prints nothing.
 *
 * Returns what ValidateString returns: 0, OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int PARAM_check_password(const char* value_p, int min_len, int max_len);

/*
 * PARAM_check_string_len: the length must be from min_len to max_len bytes. The limits are unsigned, so a
 * negative one becomes very large. Prints nothing.
 *
 * Returns 0 or OSTREL_INVALID. Param_check_string_len has signed limits and prints a line.
 */
OSTREL_API int PARAM_check_string_len(const char* value_p, unsigned min_len, unsigned max_len);

/*
 * PARAM_check_string_prefix: the first byte must occur in first_chars, which must not be NULL. The empty
 * value is accepted. Prints nothing.
 *
 * A NULL value fails an assertion. Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int PARAM_check_string_prefix(const char* value_p, const char* first_chars);

/*
 * PARAM_check_dl_test_bufsize: the buffer size of a download test, from 1 to 1048576 bytes, written in
 * decimal digits only.
 *
 * Returns 0, or:
 * OSTREL_OUT_OF_RANGE: the value is NULL or empty, or its number overflows and is read as negative (nothing
 *   is printed in these cases); or a character is not a digit, after printing
 *   "Error in %s: The value %s is invalid\n" with the value;
 * OSTREL_WRONG_FORM: the number is 0, and nothing is printed;
 * OSTREL_BUFFER_SIZE_TOO_LARGE: the number is above 1048576, after printing
 *   "Error in %s: The value %s should be between [1,%d)\n" with the value and 1048576.
 */
OSTREL_API int PARAM_check_dl_test_bufsize(const char* value_p);

#endif
