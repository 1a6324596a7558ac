/*
 * Calls checks with the values that SQL passes. The library's output does not reach a stream, NULL is never
 * passed to the library, and several threads may call checks at the same time.
 */
#ifndef OSTREL_SQL_JUDGE_H
#define OSTREL_SQL_JUDGE_H

#include "sql/common/checks.h"

/* OstrelText is a value that is followed by a NUL byte. */
typedef struct {
    const char* bytes;
    size_t size;
} OstrelText;

/* OstrelWish selects the text that is returned in addition to the code. */
typedef enum {
    kCode,    /* no text */
    kLine,    /* the output that the check prints to standard output */
    kAfter,   /* a JSON array with the contents of each argument that the check may write to */
    kReason,  /* the reason for a refusal, as JSON */
    kSentence /* the reason as a sentence or, if an argument is secret, the lengths of the secrets */
} OstrelWish;

typedef struct {
    int code;
    char* text; /* NULL if there is no text */
    size_t size;
} OstrelAnswer;

typedef enum {
    kNoFault,
    kUnknownCheck,
    kTooFewValues,
    kTooManyValues,
    kNotCalled, /* the check has a hindrance */
    kNoVerdict,
    kNulByte,
    kNotAnInteger,
    kTooLongForBlock,
    kNoMemory
} OstrelFaultKind;

enum { kMostMessage = 256 };

/* OstrelFault is the reason for an SQL error. Its message never contains a value. */
typedef struct {
    OstrelFaultKind kind;
    char message[kMostMessage];
} OstrelFault;

#ifdef __cplusplus
extern "C" {
#endif

/*
 * ostrel_choose_check returns the check if it can be called with this number of values; otherwise it returns
 * NULL and sets the fault. If is_verdict is true, naming a check that returns a number is also a fault.
 */
const OstrelCheck* ostrel_choose_check(const char* name, size_t size, size_t values, bool is_verdict,
                                       OstrelFault* fault);

/* ostrel_is_callable performs the same tests on a check that has already been found. */
bool ostrel_is_callable(const OstrelCheck* check, size_t values, bool is_verdict, OstrelFault* fault);

/* ostrel_judge calls a callable check. Unless it returns false and sets the fault, release the answer. */
bool ostrel_judge(const OstrelCheck* check, const OstrelText* given, OstrelWish wish, OstrelAnswer* answer,
                  OstrelFault* fault);

void ostrel_release(OstrelAnswer* answer);

#ifdef __cplusplus
}
#endif

#endif
