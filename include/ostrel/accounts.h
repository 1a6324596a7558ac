/*
 * Checks for the provisioning code, PPP user names, passwords, and the fields of VoIP and e-mail accounts.
 *
 * No pointer may be NULL. Only TcmValidateProvisioningCode prints. Lengths are in bytes.
 */
#ifndef OSTREL_ACCOUNTS_H
#define OSTREL_ACCOUNTS_H

#include <ostrel/api.h>

/*
 * TcmValidateProvisioningCode: four groups of three digits in the form "000.00d.00d.ddd". Positions are
 * counted from 0. The digits at positions 6 and 10 must be from 0 to 4, those at positions 12 to 14 may be
 * any digits, and every other digit must be 0.
 *
 * Returns 0 or OSTREL_INVALID_VALUE. If a value of 15 characters is refused, the position of its first wrong
 * character is printed without a flush: "TcmValidateProvisioningCode  pCode[%d] error \n" for position 6, 10,
 * 12, 13 or 14, and "TcmValidateProvisioningCode  pCode[%d] error\n" for any other position. For a value of
 * any other length, nothing is printed.
 */
OSTREL_API int TcmValidateProvisioningCode(const char* value);

/*
 * TcmValidatePPPUsername: the user name of a PPP account.
 *
 * The ISP has two realms, which are build options and are compared case-sensitively: the account realm (by
 * default "@example.net") and the set-up realm (by default "@setup.example.net"). If a name ends in one of
 * them, with at least one character before it, only the part before the realm is checked. That part must
 * consist of digits and "#" in one of these forms, where indices are counted from 0:
 *
 *   type  realm    characters before the realm
 *   1     account  28, no "#"
 *   2     account  18 to 29, one "#", directly before the last 4 characters
 *   3     account  29, one "#", at index 12
 *   4     account  19 to 30, two "#", at index 12 and directly before the last 4 characters
 *   5     set-up   16, no "#"
 *   6     set-up   17, one "#", at index 12
 *
 * The part must have 18 to 30 characters if the account realm follows, or 16 or 17 if the set-up realm
 * follows. If it contains three or more "#", it is accepted regardless of their positions, but no type is
 * written. A name without a realm, or with nothing before the realm, is of type 0 and must consist of 1 to
 * 131 characters from CHARSET_LATIN1_PRINTABLE.
 *
 * account_type: receives the type if the name is accepted. It is unchanged if the name is refused, or if the
 *               part before the realm has three or more "#".
 *
 * Returns 0, or the code of the first test that fails:
 * OSTREL_TOO_SHORT, OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER: a fault in the part before the realm, or
 *   in the whole name if it is of type 0;
 * OSTREL_INVALID_VALUE: the part before the realm has none of the forms above.
 */
OSTREL_API int TcmValidatePPPUsername(const char* value, int* account_type);

/*
 * The functions below return 0, or the code of the first test that fails: OSTREL_TOO_SHORT, OSTREL_TOO_LONG
 * or OSTREL_FORBIDDEN_CHARACTER, in this order. character_sets.h defines the sets.
 */

/* TcmValidatePPPPassword: 1 to 67 bytes from CHARSET_LATIN1_PRINTABLE. */
OSTREL_API int TcmValidatePPPPassword(const char* value);

/* TcmValidateLANConfigPassword: 4 to 12 characters from CHARSET_NAME. */
OSTREL_API int TcmValidateLANConfigPassword(const char* value);

/* TcmValidateEmailPassword: 0 to 255 characters from CHARSET_NAME. */
OSTREL_API int TcmValidateEmailPassword(const char* value);

/* TcmValidateVoIPAnbietername: the VoIP provider's name, 1 to 32 characters from CHARSET_NAME. */
OSTREL_API int TcmValidateVoIPAnbietername(const char* value);

/* TcmValidateVoIPNumber: 1 to 32 characters from CHARSET_DIGITS. */
OSTREL_API int TcmValidateVoIPNumber(const char* value);

/* TcmValidateVoIPUsername: 1 to 64 characters from CHARSET_MAIL. */
OSTREL_API int TcmValidateVoIPUsername(const char* value);

/* TcmValidateVoIPPassword: 0 to 255 characters from CHARSET_NAME. */
OSTREL_API int TcmValidateVoIPPassword(const char* value);

/* TcmValidateVoIPAreaCode: 1 to 6 characters from CHARSET_DIGITS. */
OSTREL_API int TcmValidateVoIPAreaCode(const char* value);

/*
 * TcmValidatePort: a usable TCP or UDP port, 1 to 65535 as read by atoi. Characters after the digits are
 * ignored. Port 0 and the empty value are refused.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int TcmValidatePort(const char* value);

/* TcmValidateVoIPRegistrarPort: the same as TcmValidatePort. */
OSTREL_API int TcmValidateVoIPRegistrarPort(const char* value);

#endif
