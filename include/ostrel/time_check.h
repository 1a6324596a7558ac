/*
 * Time service: time zone, daylight saving, NTP server.
 *
 * Values are NUL-terminated byte strings of any length and must not be NULL. A check writes a line to
 * standard output when it refuses a value, in which the first %s is its own name unless stated, and then
 * flushes all output streams. If two lines are stated, the first is that of the rule that failed.
 */
#ifndef OSTREL_TIME_CHECK_H
#define OSTREL_TIME_CHECK_H

#include <ostrel/api.h>

/*
 * Time_validate_tzone_and_tzone_name: checks that an offset and the name of a time zone agree; an empty one
 * is filled in. The built-in table has 75 rows of an offset ("-12:00" to "+12:00"; the zero offset is
 * "-00:00") and a name. It is searched from the top, and the first row that matches decides; comparisons are
 * case-sensitive.
 *
 * tzone:      a caller-owned buffer, of 7 bytes if it may be filled in.
 * tzone_name: a caller-owned buffer, of 55 bytes if it may be filled in.
 *
 * Both empty: 0.
 * tzone_name empty: it receives the name of the first row whose offset contains tzone: for "+01:00" that is
 *   "Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna", for "01:00" it is "Azores".
 * tzone empty: it receives the offset of the first row whose name contains tzone_name: for "Tokyo", "+09:00".
 * Neither empty: a row has exactly that offset, and a name that contains tzone_name.
 * A buffer is written only on success, and no byte after the terminator is changed.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with two lines, the first of them under the name of a lookup:
 *   "Error in get_tzone_name_by_tzone: Error Time Zone:%s\n\n"
 *   "Error in %s: NOT get timezone name from timezone:%s\n\n" (tzone, in both)
 * or
 *   "Error in get_tzone_by_tzone_name: Error Time Zone Name:%s\n\n"
 *   "Error in %s: NOT get timezone from timezone name:%s\n\n" (tzone_name, in both)
 * or
 *   "Error in is_tzone_consistent_with_tz_name: Time Zone:%s and Time Zone Name:%s is not consistent\n"
 *   "Error in %s: Timezone:%s and timezone name:%s aren't consistent\n" (tzone and tzone_name, in both)
 */
OSTREL_API int Time_validate_tzone_and_tzone_name(char* tzone, char* tzone_name);

/*
 * TIME_check_sync_daylight_saving_time: start and end of daylight saving are both empty or both set; their
 * contents are not examined.
 *
 * Returns 0, or prints
 * "Error in %s: DaylightSavingsStart :%s and DaylightSavingsEnd :%s should be set none or both\n" with start,
 * end; one line and one space between "set" and "none" and returns OSTREL_WRONG_FORM.
 */
OSTREL_API int TIME_check_sync_daylight_saving_time(const char* start, const char* end);

/*
 * TIME_check_local_time_zone: a time-zone offset, see TcmValidateTimeZoneFormate.
 *
 * A value that is empty or not printable is accepted, and the line of TIME_check_ascii_string is printed.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with
 *   "Error in check_timezone_formate: %s is not validate timezone formate\n" (the value) and
 *   "Error in %s: Failed check local timezone.\n\n".
 */
OSTREL_API int TIME_check_local_time_zone(const char* value);

/*
 * TIME_check_local_time_zone_name: at most 63 characters; the name is not looked up.
 *
 * A value that is empty or not printable is accepted, and the line of TIME_check_ascii_string is printed.
 *
 * Returns 0, or prints "Error in %s: Failed check local timezone name.\n\n" and returns OSTREL_INVALID_VALUE.
 */
OSTREL_API int TIME_check_local_time_zone_name(const char* value);

/*
 * TIME_check_daylight_saving_start_or_end: a date-time or a switch-over without a year, see
 * TcmValidateDaylightSavingsTime.
 *
 * A value that is empty or not printable is accepted, and the line of TIME_check_ascii_string is printed.
 *
 * Returns 0; OSTREL_INVALID_VALUE, with
 *   "Error in check_daylight_saving_time: %s is not validate daylight saving time\n" (the value) and
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
 * TIME_check_url: a bare host, see ValidateURL.
 *
 * Returns 0, or prints "Error in %s: %s is not validate URL\n" with the value and returns
 * OSTREL_INVALID_VALUE.
 */
OSTREL_API int TIME_check_url(const char* value);

/*
 * TIME_check_ascii_string: one or more bytes, each of 0x20 to 0x7E.
 *
 * Returns 0, or prints "Error in %s: %s is not printable ascii string\n" with the value and returns
 * OSTREL_INVALID.
 */
OSTREL_API int TIME_check_ascii_string(const char* value);

/*
 * TIME_check_NTP_server: TIME_check_ntpserver_length and then TIME_check_url, whose codes it returns and
 * whose names they print. A value that is too long is not examined further.
 *
 * Returns 0; OSTREL_OUT_OF_RANGE; OSTREL_INVALID_VALUE.
 */
OSTREL_API int TIME_check_NTP_server(const char* value);

#endif
