/*
 * String primitives: checks of length, character set and number range, and a count of occurrences.
 *
 * The functions print nothing, keep no state and do not change their arguments. No pointer may be NULL.
 * Values are NUL-terminated byte strings of any length.
 */
#ifndef OSTREL_STRINGS_H
#define OSTREL_STRINGS_H

#include <ostrel/api.h>

/*
 * ValidateString: checks the length of a value and the set of its characters.
 *
 * min_len, max_len: the accepted lengths in bytes, both inclusive, as signed numbers; the empty value
 *                   is valid if min_len is 0 or less and max_len is 0 or more.
 * charset:          the allowed bytes; see character_sets.h. "" allows none.
 *
 * Returns 0, or the code of the first test that fails: OSTREL_TOO_SHORT, OSTREL_TOO_LONG or
 * OSTREL_FORBIDDEN_CHARACTER. Both lengths are tested before any character is examined.
 */
OSTREL_API int ValidateString(int min_len, int max_len, const char* charset, const char* value);

/*
 * ValidateNum: checks the characters of a number and its range, both ends inclusive.
 *
 * charset: the allowed bytes, as for ValidateString. The empty value passes this test and is read as 0.
 *
 * Returns 0, or the code of the first test that fails: OSTREL_FORBIDDEN_CHARACTER, or OSTREL_OUT_OF_RANGE if
 * the number that the C library's atoi reads is below min or above max.
 */
OSTREL_API int ValidateNum(int min, int max, const char* charset, const char* value);

/*
 * countChar: returns the number of bytes of the value that equal ch; 0 for the empty value.
 *
 * ch: a byte. As for strchr, only its lowest eight bits count, so a char of either sign may be passed. The
 * terminating NUL is not counted, so the result is 0 if ch is 0.
 */
OSTREL_API int countChar(const char* value, int ch);

#endif
