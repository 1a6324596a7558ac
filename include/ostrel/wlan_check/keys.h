/*
 * Keys of a wireless LAN.
 *
 * <ostrel/wlan_check.h> describes what all checks of the wireless LAN have in common.
 */
#ifndef OSTREL_WLAN_CHECK_KEYS_H
#define OSTREL_WLAN_CHECK_KEYS_H

#include <ostrel/api.h>

/*
 * WLAN_check_preshared_key: see TcmValidatePSK.
 *
 * Returns 0, or prints "Error in %s: Error key pass phrase:%s\n\n" with the value and returns
 * OSTREL_WRONG_FORM or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int WLAN_check_preshared_key(const char* value);

/*
 * WLAN_check_preshared_key2: a pre-shared key, with the pass phrase that may have been passed in its place.
 *
 * A PASS PHRASE IS NEVER ACCEPTED. If psk is not empty, it is ignored; otherwise it is refused.
 *
 * Returns 0, or:
 * OSTREL_WRONG_FORM, OSTREL_FORBIDDEN_CHARACTER: the psk (see TcmValidatePSK), with
 *   "Error in %s: Error PreSharedKey:%s\n\n" (psk);
 * OSTREL_TOO_SHORT: a pass phrase and no psk, with "Error in %s: Error KeyPassphrase:%s\n\n" (passphrase);
 * OSTREL_INVALID_VALUE: both empty, with both lines, each flushed.
 */
OSTREL_API int WLAN_check_preshared_key2(const char* psk, const char* passphrase);

/*
 * WLAN_check_wepkeys: the four WEP keys (IEEE 802.11), of 10 or 26 hexadecimal digits and all of one length.
 *
 * keys: a caller-owned block of 1028 bytes: four NUL-terminated keys, each in a buffer of 257 bytes, one
 *       directly after the other. A key that is empty or contains a byte outside 0x20 to 0x7E is skipped:
 *       its first byte, and nothing else, is set to NUL, even if a later key is refused. NULL fails an
 *       assertion: the condition is "value != ((void *)0)", the module "wlan_check", the line 500.
 *
 * The first key that is refused decides; later ones are not examined. For each skipped key
 *   "Error in %s: The key should not be empty or non printable ascii string: %s\n\n" (the key) is printed.
 *
 * Returns 0, or:
 * OSTREL_FORBIDDEN_CHARACTER: "Error in %s: The key should not contain non hexa char: %s\n\n";
 * OSTREL_TOO_LONG, 27 digits or more: "Error in %s: The hexa key is too long: %s\n\n";
 * OSTREL_TOO_SHORT, fewer than 10 digits: "Error in %s: The hexa key is too short: %s\n\n";
 * OSTREL_WEP_KEY_LENGTH, 11 to 25 digits:
 *   "Error in %s: The hexa key length is less than %d and more than %d: %s\n\n" (26, 10, the key), or
 *   a length that differs from an earlier key's:
 *   "Error in %s: The previons valid key length is %d and now %d for: %s\n\n" (both lengths, the key);
 * OSTREL_INVALID_VALUE: all four were skipped; nothing more is printed.
 */
OSTREL_API int WLAN_check_wepkeys(char* keys);

/*
 * WLAN_check_keys: the key of an HNAP security setting.
 *
 * type, encryption: see WLAN_check_HNAP_SecurityType.
 *
 *   type                                       key
 *   "WPA-PSK", "WPA2-PSK", "WPA-AUTO-PSK"      as TcmValidatePSK or as TcmValidateKPP
 *   "WEP-OPEN", "WEP-SHARED", "WEP-RADIUS"     10 characters with "WEP-64", 26 with "WEP-128", each of
 *                                              0x20 to 0x7E: hexadecimal digits are not required
 *   "WPA-RADIUS", "WPA2-RADIUS",
 *   "WPA-AUTO-RADIUS"                          not examined
 *
 * Writes to standard error, nothing to standard output, and flushes nothing. The last line is "The code :
 * %d\n" with the result code, unless that is OSTREL_FORBIDDEN_CHARACTER; before it, for the WEP types, comes
 * "The key : %s\n".
 *
 * Returns 0, or:
 * OSTREL_INVALID: a bad key for a PSK type, or another type;
 * OSTREL_FORBIDDEN_CHARACTER: a WEP key with another byte, with
 *   "The key should not be empty or non printable ascii string: %s\n" and
 *   "The key should not contain non hexa char: %s\n";
 * OSTREL_ENCRYPTION_MISMATCH: a WEP key whose length does not suit the encryption, the empty key included.
 */
OSTREL_API int WLAN_check_keys(const char* key, const char* type, const char* encryption);

/*
 * WLAN_check_default_wep_key_index: a number of 0 to 3 as atoi reads it: text without a number is 0 and what
 * follows the digits is ignored, so "abc" and the empty value are accepted.
 *
 * Returns 0, or prints "Error in %s: Error default wep key index:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_default_wep_key_index(const char* value);

#endif
