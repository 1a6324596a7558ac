/* A table of the library's functions, for calling them from SQL. */
#ifndef OSTREL_SQL_CHECKS_H
#define OSTREL_SQL_CHECKS_H

#include <stdbool.h>
#include <stddef.h>

enum { kMostArguments = 4 };

typedef enum {
    kText,
    kBuffer, /* read and written */
    kBlocks, /* an array of fixed-size strings, read and written; SQL passes each as a separate value */
    kInteger,
    kUnsigned,
    kOutputText, /* write-only, so SQL does not pass it */
    kOutputInteger
} OstrelKind;

typedef struct {
    const char* name;
    OstrelKind kind;
    bool is_secret;
    unsigned blocks;
    size_t block_size;
} OstrelArgument;

/* OstrelSlot is one argument of a call. */
typedef struct {
    const char* text;
    char* buffer; /* allocated with malloc, or NULL */
    int integer;
    unsigned natural;
} OstrelSlot;

/* OstrelHindrance is the reason why SQL must not call a check. */
typedef enum { kNone, kNeverReturns, kRunsShell } OstrelHindrance;

typedef struct {
    const char* name;
    const char* sql_name; /* the name of the SQL function for this check */
    unsigned texts;       /* the number of values that SQL passes */
    unsigned count;       /* the number of arguments */
    OstrelArgument arguments[kMostArguments];
    bool is_number; /* the check returns a number instead of a result code */
    OstrelHindrance hindrance;
    int (*call)(OstrelSlot* slots);
} OstrelCheck;

#ifdef __cplusplus
extern "C" {
#endif

extern const OstrelCheck ostrel_checks[];
extern const size_t ostrel_check_count;

#ifdef __cplusplus
}
#endif

#endif
