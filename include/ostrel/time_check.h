/*
 * Checks for the time zone, daylight saving and the NTP server.
 *
 * Values are NUL-terminated byte strings of any length and must not be NULL. A check that refuses a value
 * writes the lines shown below to standard output and flushes all output streams after each line. The first
 * %s in a line is the name of the check unless noted otherwise. Where two lines are listed, the first is
 * printed by the lookup or test that failed.
 */
#ifndef OSTREL_TIME_CHECK_H
#define OSTREL_TIME_CHECK_H

#include <ostrel/api.h>

/*
 * Time_validate_tzone_and_tzone_name: checks that an offset and the name of a time zone agree, or fills in
 * the one that is empty. The built-in table has 75 rows, each with an offset ("-12:00" to "+12:00"; the zero
 * offset is "-00:00") and a name. It is searched from the top, and the first row that matches is used;
 * comparisons are case-sensitive.
 *
 * tzone:      a caller-owned buffer, of at least 7 bytes if it may be filled in.
 * tzone_name: a caller-owned buffer, of at least 55 bytes if it may be filled in.
 *
 * If both are empty, the result is 0.
 * If only tzone_name is empty, it receives the name of the first row whose offset contains tzone, which
 * is "Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna" for "+01:00", and "Azores" for "01:00".
 * If only tzone is empty, it receives the offset of the first row whose name contains tzone_name, which is
 * "+09:00" for "Tokyo".
 * If neither is empty, a row must have exactly that offset and a name that contains tzone_name.
 * A buffer is written only on success, and no byte after the terminator is changed.
 *
 * Returns 0, or prints two lines and returns OSTREL_INVALID_VALUE. The first line contains the name of the
 * lookup that failed, and the second that of the check:
 *   "Error in get_tzone_name_by_tzone: Error Time Zone:%s\n\n" and
 *   "Error in %s: NOT get timezone name from timezone:%s\n\n", each with tzone;
 * or
 *   "Error in get_tzone_by_tzone_name: Error Time Zone Name:%s\n\n" and
 *   "Error in %s: NOT get timezone from timezone name:%s\n\n", each with tzone_name;
 * or
 *   "Error in is_tzone_consistent_with_tz_name: Time Zone:%s and Time Zone Name:%s is not consistent\n" and
 *   "Error in %s: Timezone:%s and timezone name:%s aren't consistent\n", each with tzone and tzone_name.
 */
OSTREL_API int Time_validate_tzone_and_tzone_name(char* tzone, char* tzone_name);

/*
 * TIME_check_sync_daylight_saving_time: the start and the end of daylight saving must either both be empty or
 * both be set; their contents are not examined.
 *
 * Returns 0, or prints
 * "Error in %s: DaylightSavingsStart :%s and DaylightSavingsEnd :%s should be set none or both\n" with start
 * and end, and returns OSTREL_WRONG_FORM.
 */
OSTREL_API int TIME_check_sync_daylight_saving_time(const char* start, const char* end);

/*
 * TIME_check_local_time_zone: a time-zone offset, as checked by TcmValidateTimeZoneFormate.
 *
 * If the value is empty or not printable, TIME_check_ascii_string prints its line, but the value is accepted.
 *
 * Returns 0, or prints two lines and returns OSTREL_INVALID_VALUE:
 *   "Error in check_timezone_formate: %s is not validate timezone formate\n" with the value and
 *   "Error in %s: Failed check local timezone.\n\n".
 */
OSTREL_API int TIME_check_local_time_zone(const char* value);

/*
 * TIME_check_local_time_zone_name: at most 63 characters; the name is not looked up.
 *
 * If the value is empty or not printable, TIME_check_ascii_string prints its line, but the value is accepted.
 *
 * Returns 0, or prints "Error in %s: Failed check local timezone name.\n\n" and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int TIME_check_local_time_zone_name(const char* value);

/*
 * TIME_check_daylight_saving_start_or_end: a date-time, or a switch-over without a year, as checked by
 * TcmValidateDaylightSavingsTime.
 *
 * If the value is empty or not printable, TIME_check_ascii_string prints its line, but the value is accepted.
 *
 * Returns 0, or prints two lines and returns OSTREL_INVALID_VALUE:
 *   "Error in check_daylight_saving_time: %s is not validate daylight saving time\n" with the value and
 *   "Error in %s: Failed check daylight saving time.\n\n".
 */
OSTREL_API int TIME_check_daylight_saving_start_or_end(const char* value);

/*
 * TIME_check_ntpserver_length: 1 to 64 bytes.
 *
 * Returns 0, or prints "Error in %s: %s is out of range for the value of NTPServer\n" with the value and
 * returns OSTREL_OUT_OF_RANGE.
 */
OSTREL_API int TIME_check_ntpserver_length(const char* value);

/*
 * TIME_check_url: a bare host, as checked by ValidateURL.
 *
 * Returns 0, or prints "Error in %s: %s is not validate URL\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int TIME_check_url(const char* value);

/*
 * TIME_check_ascii_string: one or more bytes, each from 0x20 to 0x7E.
 *
 * Returns 0, or prints "Error in %s: %s is not printable ascii string\n" with the value and returns
 * OSTREL_INVALID.
 */
OSTREL_API int TIME_check_ascii_string(const char* value);

/*
 * TIME_check_NTP_server: calls TIME_check_ntpserver_length and, if that returns 0, TIME_check_url. Each
 * prints its line under its own name.
 *
 * Returns 0, or the first other result, which is OSTREL_OUT_OF_RANGE or OSTREL_INVALID_VALUE.
 */
OSTREL_API int TIME_check_NTP_server(const char* value);

#endif
