/* Values: from what the server has to what a check is given, and back. */
#ifndef OSTREL_SQL_POSTGRESQL_VALUES_H
#define OSTREL_SQL_POSTGRESQL_VALUES_H

#include "postgres.h"

#include "sql/common/judge.h"

/* kOstrelShort is the room for values that need no memory of their own. */
enum { kOstrelShort = 256 };

/* ostrel_raise raises the fault as an error, with an SQLSTATE for its kind. */
void pg_attribute_noreturn() ostrel_raise(const OstrelFault* fault);

/*
 * ostrel_take makes bytes with a NUL byte after them of a text or a bytea; a text of another encoding becomes UTF-8. A
 * short one is put into the room, if there is one.
 */
OstrelText ostrel_take(Datum value, bool is_text, char* room);

/* ostrel_told copies what the answer has to memory of the server, and releases it; NULL where it has nothing. */
char* ostrel_told(OstrelAnswer* answer);

/*
 * ostrel_jsonb makes jsonb of JSON in ASCII, which it changes. What the database's encoding may lack, "\u0080" to
 * "\u00FF", becomes "\\x80" to "\\xFF", but for UTF-8 and Latin-1.
 */
Datum ostrel_jsonb(char* json);

/* ostrel_shown is the text in the server's encoding; a byte that is no character of UTF-8 is written as "\xFF". */
char* ostrel_shown(const char* bytes, size_t size);

#endif
