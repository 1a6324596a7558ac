/*
 * Checks for the keys of a wireless LAN.
 *
 * <ostrel/wlan_check.h> describes what all wireless LAN checks have in common.
 */
#ifndef OSTREL_WLAN_CHECK_KEYS_H
#define OSTREL_WLAN_CHECK_KEYS_H

#include <ostrel/api.h>

/*
 * WLAN_check_preshared_key: a pre-shared key, as checked by TcmValidatePSK.
 *
 * Returns 0, or prints "Error in %s: Error key pass phrase:%s\n\n" with the value and returns
 * OSTREL_WRONG_FORM or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int WLAN_check_preshared_key(const char* value);

/*
 * WLAN_check_preshared_key2: a pre-shared key, and an alternative pass phrase.
 *
 * A PASS PHRASE IS NEVER ACCEPTED. If psk is not empty, the pass phrase is ignored; otherwise it is refused.
 *
 * Returns 0, or:
 * OSTREL_WRONG_FORM or OSTREL_FORBIDDEN_CHARACTER: TcmValidatePSK refuses psk, after printing
 *   "Error in %s: Error PreSharedKey:%s\n\n" with psk;
 * OSTREL_TOO_SHORT: psk is empty and passphrase is not, after printing
 *   "Error in %s: Error KeyPassphrase:%s\n\n" with passphrase;
 * OSTREL_INVALID_VALUE: both are empty, after printing both lines and flushing after each.
 */
OSTREL_API int WLAN_check_preshared_key2(const char* psk, const char* passphrase);

/*
 * WLAN_check_wepkeys: the four WEP keys (IEEE 802.11), each of 10 or 26 hexadecimal digits and all of the
 * same length.
 *
 * keys: a caller-owned block of 1028 bytes, which consists of four 257-byte buffers, each with one
 *       NUL-terminated key. A key that is empty or contains a byte outside 0x20 to 0x7E is skipped, and its
 *       first byte is set to NUL, even if a later key is refused. Nothing else is changed. A NULL pointer
 *       fails an assertion whose message gives the condition "value != ((void *)0)", the module "wlan_check"
 *       and line 500.
 *
 * The first key that is refused determines the result; later keys are not examined. For each skipped key,
 * "Error in %s: The key should not be empty or non printable ascii string: %s\n\n" is printed with the key.
 *
 * Returns 0, or one of these codes after printing its line, with the key unless noted otherwise:
 * OSTREL_FORBIDDEN_CHARACTER: a character is not a hexadecimal digit:
 *   "Error in %s: The key should not contain non hexa char: %s\n\n";
 * OSTREL_TOO_LONG: the key has 27 digits or more:
 *   "Error in %s: The hexa key is too long: %s\n\n";
 * OSTREL_TOO_SHORT: the key has fewer than 10 digits:
 *   "Error in %s: The hexa key is too short: %s\n\n";
 * OSTREL_WEP_KEY_LENGTH: the key has 11 to 25 digits:
 *   "Error in %s: The hexa key length is less than %d and more than %d: %s\n\n" with 26, 10 and the key;
 * OSTREL_WEP_KEY_LENGTH: the length of the key differs from that of an earlier key:
 *   "Error in %s: The previons valid key length is %d and now %d for: %s\n\n" with both lengths and the key;
 * OSTREL_INVALID_VALUE: all four keys were skipped; no further line is printed.
 */
OSTREL_API int WLAN_check_wepkeys(char* keys);

/*
 * WLAN_check_keys: the key of an HNAP security setting.
 *
 * type, encryption: see WLAN_check_HNAP_SecurityType.
 *
 *   type                                       key
 *   "WPA-PSK", "WPA2-PSK", "WPA-AUTO-PSK"      a key that TcmValidatePSK or TcmValidateKPP accepts
 *   "WEP-OPEN", "WEP-SHARED", "WEP-RADIUS"     10 characters with "WEP-64" or 26 with "WEP-128", each from
 *                                              0x20 to 0x7E; hexadecimal digits are not required
 *   "WPA-RADIUS", "WPA2-RADIUS",
 *   "WPA-AUTO-RADIUS"                          not examined
 *
 * Writes to standard error and not to standard output, and flushes nothing. The last line is
 * "The code : %d\n" with the result code, unless that is OSTREL_FORBIDDEN_CHARACTER; for the WEP types,
 * "The key : %s\n" with the key is printed before it.
 *
 * Returns 0, or:
 * OSTREL_INVALID: the type is a PSK type and the key is refused, or the type is not in the table;
 * OSTREL_FORBIDDEN_CHARACTER: a WEP key contains a byte outside 0x20 to 0x7E, after printing two lines with
 *   the key:
 *   "The key should not be empty or non printable ascii string: %s\n" and
 *   "The key should not contain non hexa char: %s\n";
 * OSTREL_ENCRYPTION_MISMATCH: the length of a WEP key does not suit the encryption, which is always the case
 *   for an empty key.
 */
OSTREL_API int WLAN_check_keys(const char* key, const char* type, const char* encryption);

/*
 * WLAN_check_default_wep_key_index: a number from 0 to 3 as read by atoi. A string without a number is read
 * as 0, and characters after the digits are ignored, so "abc" and the empty value are accepted.
 *
 * Returns 0, or prints "Error in %s: Error default wep key index:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_default_wep_key_index(const char* value);

#endif
