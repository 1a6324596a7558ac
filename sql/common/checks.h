/*
 * Checks: the functions of the library as SQL calls them. The table, checks.inc, is made by generate.py of what
 * "ostrel-check list --json" prints.
 */
#ifndef OSTREL_SQL_CHECKS_H
#define OSTREL_SQL_CHECKS_H

#include <stdbool.h>
#include <stddef.h>

enum { kMostArguments = 4 };

typedef enum {
    kText,
    kBuffer, /* read and written */
    kBlocks, /* several texts at a fixed distance, read and written; SQL gives one after the other */
    kInteger,
    kUnsigned,
    kOutputText, /* only written, and not given by SQL */
    kOutputInteger
} OstrelKind;

typedef struct {
    const char* name;
    OstrelKind kind;
    bool is_secret;
    unsigned blocks;
    size_t block_size;
} OstrelArgument;

/* OstrelShape says what the library's function takes: t a const char*, b a char*, i an int, u an unsigned, o an int*. */
typedef enum {
    kShapeB,
    kShapeBb,
    kShapeIitt,
    kShapeIui,
    kShapeT,
    kShapeTb,
    kShapeTi,
    kShapeTii,
    kShapeTo,
    kShapeTt,
    kShapeTtt,
    kShapeTttt,
    kShapeTuu
} OstrelShape;

typedef union {
    int (*b)(char*);
    int (*bb)(char*, char*);
    int (*iitt)(int, int, const char*, const char*);
    int (*iui)(int, unsigned, int);
    int (*t)(const char*);
    int (*tb)(const char*, char*);
    int (*ti)(const char*, int);
    int (*tii)(const char*, int, int);
    int (*to)(const char*, int*);
    int (*tt)(const char*, const char*);
    int (*ttt)(const char*, const char*, const char*);
    int (*tttt)(const char*, const char*, const char*, const char*);
    int (*tuu)(const char*, unsigned, unsigned);
} OstrelFunction;

/* OstrelHindrance says why SQL must not call a check. */
typedef enum { kNone, kNeverReturns, kRunsShell } OstrelHindrance;

typedef struct {
    const char* name;
    const char* sql_name; /* of the SQL function that is this check alone */
    unsigned texts;       /* how many values SQL gives */
    unsigned count;       /* of the arguments */
    OstrelArgument arguments[kMostArguments];
    bool is_number; /* what it answers is a number, and no verdict */
    OstrelHindrance hindrance;
    OstrelShape shape;
    OstrelFunction function;
} OstrelCheck;

#ifdef __cplusplus
extern "C" {
#endif

extern const OstrelCheck ostrel_checks[];
extern const size_t ostrel_check_count;

/* ostrel_find_check returns the check of that name, or NULL. The name need not be terminated. */
const OstrelCheck* ostrel_find_check(const char* name, size_t size);

/* ostrel_has_secret tells whether an argument is not to be shown. */
bool ostrel_has_secret(const OstrelCheck* check);

#ifdef __cplusplus
}
#endif

#endif
