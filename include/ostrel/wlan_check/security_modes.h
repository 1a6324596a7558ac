/*
 * Checks for the security modes of a wireless LAN, its HNAP security setting and its RADIUS secret.
 *
 * <ostrel/wlan_check.h> describes what all wireless LAN checks have in common.
 */
#ifndef OSTREL_WLAN_CHECK_SECURITY_MODES_H
#define OSTREL_WLAN_CHECK_SECURITY_MODES_H

#include <ostrel/api.h>

/*
 * WLAN_check_beacon_type: a beacon type, as checked by TcmValidateBeaconType.
 *
 * Returns 0, or prints "Error in %s: Error beacon type:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_beacon_type(const char* value);

/*
 * WLAN_check_basic_encryption_modes: "WEPEncryption" or "None".
 *
 * Returns 0, or prints "Error in %s: Error basic encryption modes:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_basic_encryption_modes(const char* value);

/*
 * WLAN_check_basic_authentication_modes: "None" or "EAPAuthentication".
 *
 * Returns 0, or prints "Error in %s: Error basic authentication modes:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_basic_authentication_modes(const char* value);

/*
 * WLAN_check_wpa_encryption_modes: "WEPEncryption", "TKIPEncryption", "WEPandTKIPEncryption",
 * "AESEncryption", "WEPandAESEncryption", "TKIPandAESEncryption" or "WEPandTKIPandAESEncryption".
 *
 * Returns 0, or prints "Error in %s: Error wpa encryption modes:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_wpa_encryption_modes(const char* value);

/*
 * WLAN_check_wpa_authentication_modes: "PSKAuthentication" or "EAPAuthentication".
 *
 * Returns 0, or prints "Error in %s: Error wpa authentication modes:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_wpa_authentication_modes(const char* value);

/*
 * WLAN_check_IEEE11i_encryption_modes: an encryption mode of IEEE 802.11i (WPA2).
 *
 * readwrite_mode: selects the list that applies.
 *                 0: "AESEncryption", "WEPandAESEncryption", "TKIPandAESEncryption" or
 *                    "WEPandTKIPandAESEncryption"
 *                 1: "WEPEncryption", "TKIPEncryption" or "WEPandTKIPEncryption"
 *
 * Returns 0, or OSTREL_INVALID_VALUE after printing the line of the first test that fails:
 *   the value has 32 bytes or more:
 *     "Error in %s: Error IEEE11i encryption modes:%s length out of range. [0,31]\n\n" with the value;
 *   readwrite_mode is neither 0 nor 1:
 *     "Error in %s: Error IEEE11i encryption modes:readwrite mode %d invalid \n\n" with readwrite_mode;
 *   the value is not in the list:
 *     "Error in %s: Error IEEE11i encryption modes:%s\n\n" with the value.
 */
OSTREL_API int WLAN_check_IEEE11i_encryption_modes(const char* value, int readwrite_mode);

/*
 * WLAN_check_IEEE11i_authentication_modes: an authentication mode of IEEE 802.11i.
 *
 * readwrite_mode: selects the list that applies.
 *                 0: "EAPAuthentication" or "EAPandPSKAuthentication"
 *                 1: "PSKAuthentication"
 *
 * The codes, tests and lines are the same as for WLAN_check_IEEE11i_encryption_modes, so the lines contain
 * "encryption modes" here too.
 */
OSTREL_API int WLAN_check_IEEE11i_authentication_modes(const char* value, int readwrite_mode);

/*
 * WLAN_check_authentication_service_mode: "none" (in lower case), "LinkAuthentication" or "RadiusClient".
 *
 * Returns 0, or OSTREL_INVALID_VALUE after printing the line of the first test that fails:
 *   the value has 32 bytes or more:
 *     "Error in %s: Error authentication_service_mode:%s length out of range. [0,31]\n\n" with the value;
 *   the value is not one of these three keywords:
 *     "Error in %s: Error authentication_service_mode value invalid :%s\n\n" with the value.
 */
OSTREL_API int WLAN_check_authentication_service_mode(const char* value);

/*
 * WLAN_check_HNAP_SecurityType: an HNAP security type and its encryption. Prints nothing.
 *
 * setting1, setting2: if they are "0" and "auto", respectively, only the WPA2 types are allowed.
 *
 *   type                                   encryption
 *   "WEP-OPEN", "WEP-SHARED"               "WEP-64" or "WEP-128"
 *   "WEP-RADIUS"                           "WEP-64" or "WEP-128"; not allowed on the model "M2840"
 *   "WPA-PSK", "WPA-RADIUS"                "TKIP"
 *   "WPA2-PSK", "WPA2-RADIUS"              "AES"
 *   "WPA-AUTO-PSK", "WPA-AUTO-RADIUS"      "TKIPORAES"
 *
 * If the host supplies cmsUtl_strcmp, the library calls it to compare the two settings and the model (a build
 * option) with these strings.
 *
 * Returns 0, or:
 * OSTREL_SECURITY_TYPE_NOT_ALLOWED: the type is not in the table (the empty type included), or is not allowed
 *   with these settings or on this model;
 * OSTREL_ENCRYPTION_MISMATCH: the encryption does not suit the type.
 */
OSTREL_API int WLAN_check_HNAP_SecurityType(const char* setting1, const char* setting2, const char* type,
                                            const char* encryption);

/*
 * WLAN_check_HNAP_KeyRenewal: the interval at which a group key is renewed, from 600 to 7200 seconds, written
 * with 3 or 4 digits. Prints nothing.
 *
 * renewal: if it is "false", neither of the other arguments is examined.
 * type:    if it is "WEP-SHARED", "WEP-RADIUS" or "WEP-OPEN", the interval is not examined.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int WLAN_check_HNAP_KeyRenewal(const char* renewal, const char* interval, const char* type);

/*
 * WLAN_check_radius_sec: a RADIUS shared secret (RFC 2865) of 1 to 80 bytes of any kind. Prints nothing.
 *
 * Returns 0 or OSTREL_INVALID.
 */
OSTREL_API int WLAN_check_radius_sec(const char* value);

#endif
