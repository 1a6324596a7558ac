/*
 * Checks for dates, times and time-zone offsets in the compact and the extended notation of ISO 8601.
 *
 * Every function returns 0 or OSTREL_INVALID and prints nothing. value is a NUL-terminated byte string of any
 * length and must not be NULL; the empty value is invalid.
 *
 * In the forms below, each letter except the capital "T" represents a decimal digit; every other character
 * represents itself:
 *
 *   YYYYMMDDThh:mm:ss           date-time, compact date
 *   YYYY-MM-DDThh:mm:ss         date-time
 *   YYYY-MM-DDThh:mm:ss+HH:MM   date-time with offset; "+" or "-"
 *   MMDDThh:mm:ss               switch-over without a year, compact date
 *   MM-DDThh:mm:ss              switch-over without a year
 *   +hh:mm                      time-zone offset; "+" or "-"
 *
 * The year must be from 1970 to 9999, the month from 1 to 12, the hour from 0 to 24, and the minute and the
 * second from 0 to 59; the day must be valid according to ValidateDay. The hours and the minutes in the
 * offset of a date-time must each be from 0 to 59.
 *
 * Differences from ISO 8601: the time is in extended notation in every form; hour 24 may have minutes and
 * seconds; day 0 is valid; the hours in the offset of a date-time may be up to 59; "-00:00" is valid; "Z",
 * fractions of a second and the second 60 are invalid.
 */
#ifndef OSTREL_DATE_TIME_H
#define OSTREL_DATE_TIME_H

#include <ostrel/api.h>

/*
 * ValidateDay: a date of the Gregorian calendar, which is applied to every year, including negative ones.
 *
 * month: 1 to 12; any other number is refused. A negative argument is converted to a very large number.
 * day:   at most the length of the month. There is no lower bound: 0 and negative days are valid.
 */
OSTREL_API int ValidateDay(int year, unsigned month, int day);

/* TcmValidateTime: a date-time, with or without an offset. */
OSTREL_API int TcmValidateTime(const char* value);

/*
 * TcmValidateDaylightSavingsTime: the time at which daylight saving starts or ends, as a date-time (see
 * TcmValidateTime) or as a switch-over without a year, in which 29 February is always valid.
 */
OSTREL_API int TcmValidateDaylightSavingsTime(const char* value);

/* TcmValidateTimeZoneFormate: a time-zone offset from "-12:59" to "+12:59". */
OSTREL_API int TcmValidateTimeZoneFormate(const char* value);

#endif
