/* Converts values between the server and a check. */
#ifndef OSTREL_SQL_POSTGRESQL_VALUES_H
#define OSTREL_SQL_POSTGRESQL_VALUES_H

#include "postgres.h"

#include "sql/common/judge.h"

/* kOstrelShort is the size of a buffer for short values. */
enum { kOstrelShort = 256 };

/* ostrel_raise raises the fault as an error with the SQLSTATE for its kind. */
void pg_attribute_noreturn() ostrel_raise(const OstrelFault* fault);

/*
 * ostrel_take returns the bytes of a text or bytea value, followed by a NUL byte. Text in another encoding is
 * converted to UTF-8. If room is not NULL, a short value is stored there.
 */
OstrelText ostrel_take(Datum value, bool is_text, char* room);

/* ostrel_told moves the answer's text into the server's memory. It returns NULL if there is no text. */
char* ostrel_told(OstrelAnswer* answer);

/*
 * ostrel_jsonb converts JSON in ASCII to jsonb, and may modify the string. If the database uses neither UTF-8
 * nor Latin-1, the characters "\u0080" to "\u00FF", which its encoding might lack, are replaced with
 * "\\x80" to "\\xFF".
 */
Datum ostrel_jsonb(char* json);

/* ostrel_shown converts bytes to the server's encoding, and escapes bytes that are not valid UTF-8. */
char* ostrel_shown(const char* bytes, size_t size);

#endif
