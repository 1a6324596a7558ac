/*
 * Host names, the URLs of the management service, e-mail addresses, VoIP servers.
 *
 * value is a NUL-terminated byte string of any length and must not be NULL; it is not changed. Nothing is
 * printed. Where OSTREL_TOO_SHORT, OSTREL_TOO_LONG and OSTREL_FORBIDDEN_CHARACTER are answers, they are
 * tested in this order and before the form. The sets are those of character_sets.h.
 */
#ifndef OSTREL_HOSTS_H
#define OSTREL_HOSTS_H

#include <ostrel/api.h>

/*
 * TcmValidateDomainName: a host name in the style of RFC 952 and RFC 1123: 1 to 6 labels between dots, each
 * of 1 to 20 characters of CHARSET_HOST (letters, digits, "-").
 *
 * Narrower than RFC 1123, whose labels have up to 63 characters and whose number is not limited; wider in
 * that a label may begin or end with "-". A single label such as "localhost" is valid; a final dot is not. A
 * value of digits and dots only is no name but a number. The empty value is refused.
 *
 * 0; OSTREL_INVALID.
 */
OSTREL_API int TcmValidateDomainName(const char* value);

/*
 * ValidateURL: a bare host, despite its name: a domain name (TcmValidateDomainName) or an IPv4 address
 * (TcmValidateIPAddress). Neither a scheme nor a port nor a path; the empty value is refused.
 *
 * 0; OSTREL_INVALID.
 */
OSTREL_API int ValidateURL(const char* value);

/*
 * TcmValidateServerURL: the URL of a management server, at most 256 characters of CHARSET_URL:
 *
 *   "x-dslf_cwmp://" or "x-dslf_cwmps://" (case-sensitive), host, [":" port], ["/" path]
 *
 * host: as for ValidateURL. port: digits only, 0 to 65535 as atoi reads them; it may be empty, which is 0,
 * and what atoi makes of a number that does not fit is the C library's affair. path: not examined any
 * further.
 *
 * Narrower than RFC 3986: none of "@", "%", "=", "&", "#" and "~" is allowed anywhere, there is no user
 * information and no IPv6 address, and the first ":" behind the scheme parts host and port wherever it
 * stands, so that a URL without a port that has a ":" in its path is refused. A "?" directly behind the host
 * belongs to the host, which it makes invalid.
 *
 * 0; OSTREL_INVALID.
 */
OSTREL_API int TcmValidateServerURL(const char* value);

/*
 * TcmValidatefirmwareURL: the URL of a firmware image: TcmValidateServerURL with the schemes "http://" and
 * "https://".
 *
 * 0; OSTREL_WRONG_FORM, for every fault.
 */
OSTREL_API int TcmValidatefirmwareURL(const char* value);

/*
 * isEmail: 5 or more bytes with a character before the first "@", and the last "." at least two places behind
 * that "@" and not at the end.
 *
 * Only the outline of an address of RFC 5321 and RFC 5322: no character is refused, a second "@" neither.
 *
 * 0; OSTREL_INVALID. Mind that 0, which C takes for false, is the answer for an address.
 */
OSTREL_API int isEmail(const char* value);

/*
 * TcmValidateEmailAddress: 5 to 64 characters of CHARSET_MAIL that isEmail accepts.
 *
 * The set has far fewer characters than RFC 5321 allows in a local part: neither "_" nor "+", for example.
 *
 * 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER; OSTREL_WRONG_FORM.
 */
OSTREL_API int TcmValidateEmailAddress(const char* value);

/*
 * TcmValidateVoIPRegistrar: the SIP registrar, 3 to 64 characters of CHARSET_NAME that ValidateURL accepts.
 *
 * "_" is in the set but in no host: it is refused for the form.
 *
 * 0; OSTREL_TOO_SHORT, OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER; OSTREL_WRONG_FORM.
 */
OSTREL_API int TcmValidateVoIPRegistrar(const char* value);

/*
 * TcmValidateVoIPSTUNServer: the STUN server, at most 64 characters of CHARSET_HOSTPORT: empty, or a host
 * that ValidateURL accepts.
 *
 * "_" and ":" are in the set but in no host: a value with a port is refused for the form.
 *
 * 0; OSTREL_TOO_LONG, OSTREL_FORBIDDEN_CHARACTER; OSTREL_WRONG_FORM.
 */
OSTREL_API int TcmValidateVoIPSTUNServer(const char* value);

#endif
