/* Functions that judge.c calls to obtain buffer sizes and reasons from the descriptions. */
#ifndef OSTREL_SQL_CALL_H
#define OSTREL_SQL_CALL_H

#include "sql/common/judge.h"

/* OSTREL_UNWRITTEN is the initial value of an output number. No check writes this value. */
#define OSTREL_UNWRITTEN (-2147483647 - 1)

#ifdef __cplusplus
extern "C" {
#endif

/* ostrel_room returns the required size of the argument's buffer, or 0 if it runs out of memory. */
size_t ostrel_room(const OstrelCheck* check, const OstrelText* given, const OstrelSlot* slots,
                   unsigned argument);

/* ostrel_explain allocates and stores the requested text, and returns false if it runs out of memory. */
bool ostrel_explain(const OstrelCheck* check, const OstrelText* given, const OstrelSlot* slots,
                    OstrelWish wish, OstrelAnswer* answer);

#ifdef __cplusplus
}
#endif

#endif
