/*
 * Checks for the radio settings of a wireless LAN.
 *
 * <ostrel/wlan_check.h> describes what all wireless LAN checks have in common.
 *
 * radio is "RADIO_2.4GHz" or "RADIO_5GHz", in any mix of upper and lower case. Numbers are read with
 * atoi: a string without a number, such as the empty value, is read as 0. Every check returns 0 or
 * OSTREL_INVALID and prints nothing itself.
 */
#ifndef OSTREL_WLAN_CHECK_RADIO_H
#define OSTREL_WLAN_CHECK_RADIO_H

#include <ostrel/api.h>

/* WLAN_check_radio_id: either radio, or only "RADIO_2.4GHz" in builds for models other than "M2840". */
OSTREL_API int WLAN_check_radio_id(const char* radio);

/*
 * WLAN_check_channel: the channel of a radio.
 *
 * "0" selects the channel automatically and is valid for any radio, even one that does not exist.
 *
 * On 2.4 GHz, a channel is valid if it is below 14 and among the first 15 numbers that the driver lists. To
 * obtain them, the check has the shell run "wlctl -i wl0 channels > /var/hnapwl0chlist", and then reads and
 * deletes that file. If the file cannot be opened, every channel is refused and nothing is deleted. If there
 * is no wlctl, the shell reports this on standard error, and the list is empty. Anything that wlctl itself
 * writes to standard error appears there too.
 *
 * On 5 GHz, the valid channels are 36, 40, 44, 48, 149, 153, 157 and 161, and 0, which may also be written as
 * "00", as a string without a number or as the empty value.
 *
 * THE FILE HAS A FIXED NAME, so two calls must not run at the same time. The command is run only for the 2.4
 * GHz radio.
 */
OSTREL_API int WLAN_check_channel(const char* channel, const char* radio);

/*
 * WLAN_check_second_channel: the second channel of a 40 MHz pair on 2.4 GHz.
 *
 * The second channel must be primary + 2 if primary is 1 to 4 or 7, and primary - 2 if it is 5, 6 or 8 to 13;
 * or both must be 0.
 */
OSTREL_API int WLAN_check_second_channel(const char* primary, const char* second);

/*
 * WLAN_check_5g_second_channel: the centre of a 40 MHz pair on 5 GHz.
 *
 * The second channel must be 38 if primary is 36 or 40, 46 if it is 44 or 48, 151 if it is 149 or 153, and
 * 159 if it is 157 or 161; or both must be 0.
 */
OSTREL_API int WLAN_check_5g_second_channel(const char* primary, const char* second);

/* WLAN_check_wide_channel: the channel width in MHz, which is "0" or "20", or on 5 GHz also "40". */
OSTREL_API int WLAN_check_wide_channel(const char* width, const char* radio);

/*
 * WLAN_check_IEEE11_mode: on 2.4 GHz, "802.11b", "802.11g", "802.11n", "802.11bg" or "802.11bgn"; on 5 GHz,
 * "802.11n", "802.11a" or "802.11an".
 */
OSTREL_API int WLAN_check_IEEE11_mode(const char* mode, const char* radio);

/* WLAN_check_IEEE11_standard: "a", "b", "g" or "n". */
OSTREL_API int WLAN_check_IEEE11_standard(const char* value);

#endif
