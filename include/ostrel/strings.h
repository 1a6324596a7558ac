/*
 * Primitives that check the length and the characters of a string, check the range of a number, or count the
 * occurrences of a character.
 *
 * The functions print nothing, keep no state and do not change their arguments. No pointer may be NULL.
 * Values are NUL-terminated byte strings of any length.
 */
#ifndef OSTREL_STRINGS_H
#define OSTREL_STRINGS_H

#include <ostrel/api.h>

/*
 * ValidateString: checks the length of a value and its characters.
 *
 * min_len, max_len: the smallest and largest accepted lengths in bytes, compared as signed numbers; the empty
 *                   value is valid if min_len is 0 or less and max_len is 0 or more.
 * charset:          the allowed bytes; see character_sets.h. "" allows none.
 *
 * Returns 0, or the code of the first test that fails: OSTREL_TOO_SHORT, OSTREL_TOO_LONG or
 * OSTREL_FORBIDDEN_CHARACTER. Both limits on the length are tested before any character is examined.
 */
OSTREL_API int ValidateString(int min_len, int max_len, const char* charset, const char* value);

/*
 * ValidateNum: checks that a number contains only allowed characters and is between min and max, both
 * inclusive.
 *
 * charset: the allowed bytes, as for ValidateString. The empty value passes this test and is read as 0.
 *
 * Returns 0, or the code of the first test that fails: OSTREL_FORBIDDEN_CHARACTER, or OSTREL_OUT_OF_RANGE if
 * the number that the C library's atoi reads is below min or above max.
 */
OSTREL_API int ValidateNum(int min, int max, const char* charset, const char* value);

/*
 * countChar: returns the number of bytes in the value that equal ch, or 0 for the empty value.
 *
 * ch: a byte. As with strchr, only its lowest eight bits matter, so a char may be passed whether or not it is
 * signed. The terminating NUL is not counted, so the result is 0 if ch is 0.
 */
OSTREL_API int countChar(const char* value, int ch);

#endif
