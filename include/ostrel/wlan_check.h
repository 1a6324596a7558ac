/*
 * Checks for the security modes, keys, radio and other settings of a wireless LAN.
 *
 * Values are NUL-terminated byte strings of any length and must not be NULL; only WLAN_check_wepkeys tests
 * for NULL. Keywords are case-sensitive, except radio names. The empty value is not a keyword.
 *
 * Unless noted otherwise, the lines shown for a check are written to standard output when it refuses a value,
 * and all output streams are then flushed. The first %s in a line is the name of the check. WLAN_check_keys
 * writes to standard error, and so may the shell that WLAN_check_channel runs.
 *
 * Only WLAN_check_ssid and WLAN_check_wepkeys change their arguments.
 *
 * The host process may supply two functions, exported from the program or from a library that it has loaded:
 *
 *     int cmsUtl_strcmp(const char* a, const char* b);
 *         returns 0 if the strings are equal, and any other number otherwise
 *     int htmlToText(char* text, size_t length);
 *         replaces the character references in the string in place. text[length] is the terminator. If the
 *         result is shorter, the function must terminate it. The return value is ignored.
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
