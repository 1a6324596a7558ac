/*
 * Dates, times and time-zone offsets, in the compact and the extended notation of ISO 8601.
 *
 * All return 0 or OSTREL_INVALID and print nothing. value is a NUL-terminated byte string of any length and
 * must not be NULL; the empty value is invalid.
 *
 * The letters stand for decimal digits, every other character for itself; "T" is a capital:
 *
 *   YYYYMMDDThh:mm:ss           date-time, compact date
 *   YYYY-MM-DDThh:mm:ss         date-time
 *   YYYY-MM-DDThh:mm:ss+HH:MM   date-time with offset; "+" or "-"
 *   MMDDThh:mm:ss               switch-over without a year, compact date
 *   MM-DDThh:mm:ss              switch-over without a year
 *   +hh:mm                      time-zone offset; "+" or "-"
 *
 * Year 1970 to 9999, month 1 to 12, day as for ValidateDay, hour 0 to 24, minute and second 0 to 59; hours
 * and minutes of the offset of a date-time 0 to 59 each.
 *
 * Differences from ISO 8601: the time is in extended notation in every form; hour 24 may have minutes and
 * seconds; day 0 is valid; the offset of a date-time may have any hours up to 59; "-00:00" is valid; "Z",
 * fractions of a second and the second 60 are not.
 */
#ifndef OSTREL_DATE_TIME_H
#define OSTREL_DATE_TIME_H

#include <ostrel/api.h>

/*
 * ValidateDay: a day of a month of a year of the Gregorian calendar, which is applied to every year,
 * including negative ones.
 *
 * month: 1 to 12; any other is refused. A negative number is converted to a huge one.
 * day:   at most the month's length. There is no lower bound: 0 and negative days are valid.
 */
OSTREL_API int ValidateDay(int year, unsigned month, int day);

/* TcmValidateTime: a date-time, with or without offset. */
OSTREL_API int TcmValidateTime(const char* value);

/*
 * TcmValidateDaylightSavingsTime: when daylight saving starts or ends: a date-time as for TcmValidateTime, or
 * a switch-over without a year, in which 29 February is always a day.
 */
OSTREL_API int TcmValidateDaylightSavingsTime(const char* value);

/* TcmValidateTimeZoneFormate: a time-zone offset of "-12:59" to "+12:59". */
OSTREL_API int TcmValidateTimeZoneFormate(const char* value);

#endif
