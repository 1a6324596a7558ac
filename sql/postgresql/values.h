/* Values: conversion between the server and a check. */
#ifndef OSTREL_SQL_POSTGRESQL_VALUES_H
#define OSTREL_SQL_POSTGRESQL_VALUES_H

#include "postgres.h"

#include "sql/common/judge.h"

/* kOstrelShort is the size of a buffer for short values. */
enum { kOstrelShort = 256 };

/* ostrel_raise raises the fault as an error, with an SQLSTATE for its kind. */
void pg_attribute_noreturn() ostrel_raise(const OstrelFault* fault);

/*
 * ostrel_take returns a text or a bytea as bytes with a NUL byte after them. A text of another encoding becomes UTF-8.
 * A short value is stored in the room, unless that is NULL.
 */
OstrelText ostrel_take(Datum value, bool is_text, char* room);

/* ostrel_told moves the text of the answer into memory of the server; it returns NULL if there is none. */
char* ostrel_told(OstrelAnswer* answer);

/*
 * ostrel_jsonb converts JSON in ASCII, which it changes, to jsonb. Unless the database uses UTF-8 or Latin-1, "\u0080"
 * to "\u00FF" become "\\x80" to "\\xFF", because its encoding may lack them.
 */
Datum ostrel_jsonb(char* json);

/* ostrel_shown returns the text in the server's encoding. Bytes that are not UTF-8 are written as "\xFF". */
char* ostrel_shown(const char* bytes, size_t size);

#endif
