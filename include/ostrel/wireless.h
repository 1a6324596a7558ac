/*
 * Primitives that check the keys, rates, beacon type and SSID of a wireless LAN.
 *
 * Values are NUL-terminated byte strings of any length; none may be NULL and none is changed. Every
 * comparison is byte by byte and case-sensitive. Only TcmValidateSSID prints.
 */
#ifndef OSTREL_WIRELESS_H
#define OSTREL_WIRELESS_H

#include <ostrel/api.h>

/*
 * TcmValueisValid: every byte of the value must occur in allowed, which may be empty but not NULL.
 *
 * Returns 0 or OSTREL_FORBIDDEN_CHARACTER. The empty value is valid.
 */
OSTREL_API int TcmValueisValid(const char* value, const char* allowed);

/*
 * TcmValidatePSK: a WPA pre-shared key in its raw form (IEEE 802.11, the 256-bit PSK), which is 64 characters
 * from CHARSET_HEX.
 *
 * Returns 0, or the code of the first test that fails: OSTREL_WRONG_FORM if the value has any other length
 * (the empty value included), or OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int TcmValidatePSK(const char* value);

/*
 * TcmValidateKPP: a WPA pass phrase (IEEE 802.11, pass-phrase mapping annex) of 8 to 63 characters
 * from CHARSET_ASCII_PRINTABLE.
 *
 * Returns 0, or the code of the first test that fails: OSTREL_TOO_SHORT (also for the empty value),
 * OSTREL_TOO_LONG or OSTREL_FORBIDDEN_CHARACTER. Both limits on the length are tested before any character is
 * examined.
 */
OSTREL_API int TcmValidateKPP(const char* value);

/*
 * TcmValidateRate: "Auto" or one of the twelve IEEE 802.11b/g rates in Mbit/s: "1", "2", "5.5", "6", "9",
 * "11", "12", "18", "24", "36", "48" or "54".
 *
 * Returns 0 or OSTREL_INVALID. The empty value is invalid.
 */
OSTREL_API int TcmValidateRate(const char* value);

/*
 * TcmValidateBeaconType: "None", "Basic", "WPA", "11i" or "WPAand11i".
 *
 * Returns 0 or OSTREL_INVALID. The empty value is invalid.
 */
OSTREL_API int TcmValidateBeaconType(const char* value);

/*
 * TcmValidateSSID: an SSID of 1 to 32 bytes (IEEE 802.11, SSID element), each from 0x20 to 0x7E. Spaces are
 * allowed anywhere. Every byte above 0x7E is refused.
 *
 * Every call, regardless of its result, writes "Info in TcmValidateSSID: The lenght of SSID is %d\n\n" with
 * the length in bytes to standard output, and flushes all output streams.
 *
 * Returns 0, or the code of the first test that fails: OSTREL_TOO_SHORT for the empty value, OSTREL_TOO_LONG
 * or OSTREL_FORBIDDEN_CHARACTER. The length is tested before any byte is examined.
 */
OSTREL_API int TcmValidateSSID(const char* value);

/*
 * TcmValidateDataTransmitRates: "all", "default", or one or more of the twelve rates separated by single
 * commas.
 *
 * The rates may be in any order, and a rate may be repeated. Spaces and empty items are refused, and so is
 * "Auto". A list may be of any length.
 *
 * Returns 0 or OSTREL_INVALID. The empty value is invalid.
 */
OSTREL_API int TcmValidateDataTransmitRates(const char* value);

#endif
