/*
 * Checks for the other settings of a wireless LAN: SSID, rates, location, regulatory domain, role and
 * distance.
 *
 * <ostrel/wlan_check.h> describes what all wireless LAN checks have in common.
 */
#ifndef OSTREL_WLAN_CHECK_SETTINGS_H
#define OSTREL_WLAN_CHECK_SETTINGS_H

#include <ostrel/api.h>

/*
 * WLAN_check_ssid: an SSID, as checked by TcmValidateSSID. That function is called, so its line with the
 * length is printed too.
 *
 * value: a caller-owned buffer. Its HTML character references are first replaced in place, and remain
 *        replaced regardless of the result. "a&amp;b" is an SSID of 3 bytes.
 *
 * If the host supplies htmlToText, that function replaces them. Otherwise, the library replaces the HTML 4
 * names of Latin-1 characters, the five XML names, and numbers of 1 or more in decimal ("&#65;") or
 * hexadecimal ("&#x41;"). Each reference becomes one byte of ISO 8859-1. A number above 255, for which there
 * is no such byte, becomes 0x1A, so the SSID is refused. Anything else, including other names ("&euro;"), is
 * unchanged. The string never grows.
 *
 * Returns 0, or prints "Error in %s: Error SSID:%s\n" with the resulting value and returns OSTREL_TOO_SHORT,
 * OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int WLAN_check_ssid(char* value);

/*
 * WLAN_check_max_bit_rate: a rate, as checked by TcmValidateRate.
 *
 * Returns 0, or prints "Error in %s: Error max bit rate:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_max_bit_rate(const char* value);

/*
 * WLAN_check_basic_data_transmit_rate: a list of rates, as checked by TcmValidateDataTransmitRates.
 *
 * Returns 0, or prints "Error in %s: Error basic data transmit rate:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_basic_data_transmit_rate(const char* value);

/*
 * WLAN_check_op_data_transmit_rate: exactly "1,2,5.5,6,9,11,12,18,24,36,48,54", or the empty value.
 *
 * Returns 0, or prints "Error in %s: Error operation data transmit rate:%s\n\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_op_data_transmit_rate(const char* value);

/*
 * WLAN_check_location_description: 0 to 4096 bytes of any kind.
 *
 * Returns 0, or prints "Error in %s: Error location description :%s length out of range. [0,%d]\n\n" with the
 * value and 4096, and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int WLAN_check_location_description(const char* value);

/*
 * WLAN_check_regulatory_domain: two decimal digits followed by "O" or "o" (outdoor), or by "I" or "i"
 * (indoor). Country letters are refused.
 *
 * Returns 0, or OSTREL_INVALID_VALUE after printing the line of the first test that fails:
 *   the value has 4 bytes or more:
 *     "Error in %s: Error regulatory domain :%s length out of range. [0,%d]\n\n" with the value and 3;
 *   the value has any other fault:
 *     "Error in %s: Error regulatory domain value invalid :%s\n\n" with the value.
 */
OSTREL_API int WLAN_check_regulatory_domain(const char* value);

/*
 * WLAN_check_device_opration_mode: the role of the device.
 *
 * readwrite_mode: selects the list that applies.
 *                 0: "WirelessBridge", "WirelessRepeater" or "WirelessStation"
 *                 1: "InfrastructureAccessPoint"
 *
 * Returns 0, or OSTREL_INVALID_VALUE after printing the line of the first test that fails:
 *   the value has 32 bytes or more:
 *     "Error in %s: Error operating mode:%s length out of range. [0,31]\n\n" with the value;
 *   readwrite_mode is neither 0 nor 1:
 *     "Error in %s: Error operating mode:readwrite mode %d invalid \n\n" with readwrite_mode;
 *   the value is not in the list:
 *     "Error in %s: Error operating mode:%s\n\n" with the value.
 */
OSTREL_API int WLAN_check_device_opration_mode(const char* value, int readwrite_mode);

/*
 * WLAN_check_DistanceFromRoot: a negative number as read by atoi. ZERO AND POSITIVE DISTANCES ARE REFUSED,
 * and so is a string without a number.
 *
 * Returns 0, or prints "Error in %s: Error DistanceFromRoot:%s\n\n" with the value and returns
 * OSTREL_INVALID_DISTANCE.
 */
OSTREL_API int WLAN_check_DistanceFromRoot(const char* value);

#endif
