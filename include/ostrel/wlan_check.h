/*
 * Checks for the security modes, keys, radio and other settings of a wireless LAN.
 *
 * Values are NUL-terminated byte strings of any length and must not be NULL; only WLAN_check_wepkeys tests
 * for NULL. Keywords are compared byte by byte and case-sensitively, except for the name of a radio. The
 * empty value is not a keyword.
 *
 * A check that prints writes to standard output when it refuses a value, except as stated, and then flushes
 * all output streams. The lines are stated in full; the first %s is the name of the check. WLAN_check_keys
 * writes to standard error, and so may the shell that WLAN_check_channel runs.
 *
 * Only WLAN_check_ssid and WLAN_check_wepkeys change their arguments.
 *
 * The host process may supply two functions, exported from the program or from a library that it has loaded:
 *
 *     int cmsUtl_strcmp(const char* a, const char* b);
 *         returns 0 if the strings are equal, and any other number otherwise
 *     int htmlToText(char* text, size_t length);
 *         replaces the character references in the string in place. text[length] is the terminator, and a
 *         shorter result must be terminated. The return value is ignored.
 *
 * Both are weak imports. Without them, the library compares byte by byte and converts the references itself
 * (see WLAN_check_ssid).
 */
#ifndef OSTREL_WLAN_CHECK_H
#define OSTREL_WLAN_CHECK_H

#include <ostrel/wlan_check/keys.h>
#include <ostrel/wlan_check/radio.h>
#include <ostrel/wlan_check/security_modes.h>
#include <ostrel/wlan_check/settings.h>

#endif
