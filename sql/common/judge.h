/*
 * Judging: a call of a check with the values that SQL passes. Nothing that the library prints leaves this call, no NULL
 * reaches the library, and several threads may judge at the same time.
 */
#ifndef OSTREL_SQL_JUDGE_H
#define OSTREL_SQL_JUDGE_H

#include "sql/common/checks.h"

/* OstrelText is a value, followed by a NUL byte. */
typedef struct {
    const char* bytes;
    size_t size;
} OstrelText;

/* OstrelWish selects the text that is returned in addition to the code. */
typedef enum {
    kCode,    /* none */
    kLine,    /* the output of the check to standard output */
    kAfter,   /* a JSON array with the contents of each argument that the check may write to */
    kReason,  /* the reason of a refusal as JSON */
    kSentence /* the same as a sentence; with a secret argument, only lengths */
} OstrelWish;

typedef struct {
    int code;
    char* text; /* NULL: none */
    size_t size;
} OstrelAnswer;

typedef enum {
    kNoFault,
    kUnknownCheck,
    kTooFewValues,
    kTooManyValues,
    kNotCalled, /* because of the check's hindrance */
    kNoVerdict,
    kNulByte,
    kNotAnInteger,
    kTooLongForBlock,
    kNoMemory
} OstrelFaultKind;

enum { kMostMessage = 256 };

/* OstrelFault is the reason of an SQL error. Its message contains no value. */
typedef struct {
    OstrelFaultKind kind;
    char message[kMostMessage];
} OstrelFault;

#ifdef __cplusplus
extern "C" {
#endif

/*
 * ostrel_choose_check returns the check if it can be called with so many values, or NULL and a fault. With is_verdict,
 * a check that returns a number is a fault.
 */
const OstrelCheck* ostrel_choose_check(const char* name, size_t size, size_t values, bool is_verdict,
                                       OstrelFault* fault);

/* ostrel_is_callable returns the same for a known check. */
bool ostrel_is_callable(const OstrelCheck* check, size_t values, bool is_verdict, OstrelFault* fault);

/*
 * ostrel_judge calls a check that is callable. After true, the caller releases the answer with ostrel_release; after
 * false, the fault says why.
 */
bool ostrel_judge(const OstrelCheck* check, const OstrelText* given, OstrelWish wish, OstrelAnswer* answer,
                  OstrelFault* fault);

void ostrel_release(OstrelAnswer* answer);

#ifdef __cplusplus
}
#endif

#endif
