/*
 * Checks for host names, URLs of the management service, e-mail addresses and VoIP servers.
 *
 * value is a NUL-terminated byte string of any length and must not be NULL; it is not changed. Nothing is
 * printed. Functions that return OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER test for
 * these faults in this order, before they test the form. character_sets.h defines the sets.
 */
#ifndef OSTREL_HOSTS_H
#define OSTREL_HOSTS_H

#include <ostrel/api.h>

/*
 * TcmValidateDomainName: a host name in the style of RFC 952 and RFC 1123, with 1 to 6 labels separated by
 * dots, each of 1 to 20 characters from CHARSET_HOST (letters, digits, "-").
 *
 * This is stricter than RFC 1123, which allows labels of up to 63 characters and any number of labels, but
 * more lenient in that a label may begin or end with "-". A single label such as "localhost" is valid; a
 * final dot is not. A value that consists only of digits and dots is not a name; it is refused, and so is the
 * empty value.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int TcmValidateDomainName(const char* value);

/*
 * ValidateURL: despite its name, a bare host, which is a domain name (see TcmValidateDomainName) or an IPv4
 * address (see TcmValidateIPAddress). A value with a scheme, a port or a path is refused, and so is the empty
 * value.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int ValidateURL(const char* value);

/*
 * TcmValidateServerURL: the URL of a management server, at most 256 characters from CHARSET_URL:
 *
 *   "x-dslf_cwmp://" or "x-dslf_cwmps://" (case-sensitive), host, [":" port], ["/" path]
 *
 * host: as for ValidateURL.
 * port: digits only, 0 to 65535 as read by atoi; an empty port is read as 0. How atoi reads a number that
 *       does not fit in an int depends on the C library.
 * path: not examined further.
 *
 * This is stricter than RFC 3986: none of "@", "%", "=", "&", "#" and "~" is allowed anywhere, and user
 * information and IPv6 addresses are not supported. The first ":" after the scheme separates the host from
 * the port, wherever it is, so a URL without a port is refused if its path contains a ":". A "?" directly
 * after the host is treated as part of the host, which makes it invalid.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int TcmValidateServerURL(const char* value);

/*
 * TcmValidatefirmwareURL: the URL of a firmware image, in the form that TcmValidateServerURL requires, but
 * with the scheme "http://" or "https://".
 *
 * Returns 0, or OSTREL_WRONG_FORM for any fault.
 */
OSTREL_API int TcmValidatefirmwareURL(const char* value);

/*
 * isEmail: 5 or more bytes with at least one character before the first "@", at least one between that "@"
 * and the last ".", and at least one after that ".".
 *
 * This tests only the general shape of an RFC 5321 or RFC 5322 address. No character is refused, not even a
 * second "@".
 *
 * Returns 0 or OSTREL_INVALID. Note that the result for a valid address is 0, which is false in C.
 */
OSTREL_API int isEmail(const char* value);

/*
 * TcmValidateEmailAddress: 5 to 64 characters from CHARSET_MAIL that isEmail accepts.
 *
 * The set is much smaller than the one that RFC 5321 allows in a local part. For example, it contains neither
 * "_" nor "+".
 *
 * Returns 0, OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER or OSTREL_WRONG_FORM.
 */
OSTREL_API int TcmValidateEmailAddress(const char* value);

/*
 * TcmValidateVoIPRegistrar: the SIP registrar, 3 to 64 characters from CHARSET_NAME that ValidateURL accepts.
 *
 * "_" is in the set but is not allowed in a host, so a value that contains it has the wrong form.
 *
 * Returns 0, OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER or OSTREL_WRONG_FORM.
 */
OSTREL_API int TcmValidateVoIPRegistrar(const char* value);

/*
 * TcmValidateVoIPSTUNServer: the STUN server, which is either empty or a host that ValidateURL accepts, with
 * at most 64 characters from CHARSET_HOSTPORT.
 *
 * "_" and ":" are in the set but are not allowed in a host. For example, a value with a port has the wrong
 * form.
 *
 * Returns 0, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER or OSTREL_WRONG_FORM.
 */
OSTREL_API int TcmValidateVoIPSTUNServer(const char* value);

#endif
