/*
 * String primitives: length, membership in a character set, number range, occurrences.
 *
 * They print nothing, keep no state and do not change their arguments. No pointer may be NULL. Values are
 * NUL-terminated byte strings of any length.
 */
#ifndef OSTREL_STRINGS_H
#define OSTREL_STRINGS_H

#include <ostrel/api.h>

/*
 * ValidateString: the length of a value and the set of its characters.
 *
 * min_len, max_len: the accepted lengths in bytes, both inclusive, as signed numbers; the empty value
 *                   is valid if min_len is 0 or less and max_len is 0 or more.
 * charset:          the allowed bytes, see character_sets.h; "" allows none.
 *
 * Returns 0; OSTREL_TOO_SHORT (tested first); OSTREL_TOO_LONG (before any character is examined);
 * OSTREL_FORBIDDEN_CHARACTER.
 */
OSTREL_API int ValidateString(int min_len, int max_len, const char* charset, const char* value);

/*
 * ValidateNum: the characters of a number and its range, both ends inclusive.
 *
 * charset: the allowed bytes, as for ValidateString. The empty value passes this test and is read as 0.
 *
 * Returns 0; OSTREL_FORBIDDEN_CHARACTER; OSTREL_OUT_OF_RANGE: the number that the C library's atoi reads is
 * below min or above max.
 */
OSTREL_API int ValidateNum(int min, int max, const char* charset, const char* value);

/*
 * countChar: the number of bytes of the value that equal ch; 0 for the empty value.
 *
 * ch: a byte; as for strchr, only its lowest eight bits count, so that a char of either sign may be passed.
 * The terminating NUL is not counted: for 0 the result is 0.
 */
OSTREL_API int countChar(const char* value, int ch);

#endif
