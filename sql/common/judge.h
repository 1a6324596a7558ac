/*
 * Judging: one call of a check with the values that SQL gives. Nothing that the library prints leaves this call, no NULL
 * reaches the library, and several threads may judge at a time.
 */
#ifndef OSTREL_SQL_JUDGE_H
#define OSTREL_SQL_JUDGE_H

#include "sql/common/checks.h"

/* OstrelText is a value; a NUL byte stands after its last one. */
typedef struct {
    const char* bytes;
    size_t size;
} OstrelText;

/* OstrelWish says which text is wanted beside the code. */
typedef enum {
    kCode,    /* none */
    kLine,    /* what the check prints to standard output */
    kAfter,   /* a JSON array of what each argument holds that the check may write to */
    kReason,  /* the reason of a refusal as JSON */
    kSentence /* the same as a sentence; where an argument is secret, lengths alone */
} OstrelWish;

typedef struct {
    int code;
    char* text; /* NULL: there is none */
    size_t size;
} OstrelAnswer;

typedef enum {
    kNoFault,
    kUnknownCheck,
    kTooFewValues,
    kTooManyValues,
    kNotCalled, /* of the check's hindrance */
    kNoVerdict,
    kNulByte,
    kNotAnInteger,
    kTooLongForBlock,
    kNoMemory
} OstrelFaultKind;

enum { kMostMessage = 256 };

/* OstrelFault is why SQL gets an error. Its message is one for people, without a value. */
typedef struct {
    OstrelFaultKind kind;
    char message[kMostMessage];
} OstrelFault;

#ifdef __cplusplus
extern "C" {
#endif

/*
 * ostrel_choose_check finds the check and tells whether it can be called with so many values. is_verdict: an answer that
 * is a number does not do. NULL: the fault says why.
 */
const OstrelCheck* ostrel_choose_check(const char* name, size_t size, size_t values, bool is_verdict,
                                       OstrelFault* fault);

/* ostrel_is_callable tells the same of a check that is known. */
bool ostrel_is_callable(const OstrelCheck* check, size_t values, bool is_verdict, OstrelFault* fault);

/*
 * ostrel_judge calls a check that is callable. Where it returns true, ostrel_release frees what the answer has; where it
 * returns false, the fault says why.
 */
bool ostrel_judge(const OstrelCheck* check, const OstrelText* given, OstrelWish wish, OstrelAnswer* answer,
                  OstrelFault* fault);

void ostrel_release(OstrelAnswer* answer);

#ifdef __cplusplus
}
#endif

#endif
