/* Calls: the arguments of one call in memory of their own. */
#ifndef OSTREL_SQL_CALL_H
#define OSTREL_SQL_CALL_H

#include "sql/common/judge.h"

/* kUnwritten is what a number that is only written holds before the call: none that a check writes. */
#define OSTREL_UNWRITTEN (-2147483647 - 1)

typedef struct {
    const char* text;
    char* buffer; /* of malloc, or NULL */
    int integer;
    unsigned natural;
} OstrelSlot;

#ifdef __cplusplus
extern "C" {
#endif

/* ostrel_room says how many bytes a buffer must have in this call; 0 where there is no memory to tell. */
size_t ostrel_room(const OstrelCheck* check, const OstrelText* given, const OstrelSlot* slots,
                   unsigned argument);

/* ostrel_explain makes the text of the wish, with malloc. False: there is no memory for it. */
bool ostrel_explain(const OstrelCheck* check, const OstrelText* given, const OstrelSlot* slots,
                    OstrelWish wish, OstrelAnswer* answer);

#ifdef __cplusplus
}
#endif

#endif
