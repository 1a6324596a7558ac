/* Captures the output of the library. */
#ifndef OSTREL_SQL_PRINT_H
#define OSTREL_SQL_PRINT_H

#include <stdbool.h>
#include <stddef.h>

typedef struct {
    char* bytes; /* allocated with malloc, or NULL; followed by a NUL byte */
    size_t size;
    size_t room;
    bool is_lost; /* some output was lost for lack of memory */
} OstrelPrints;

/* ostrel_capture makes this thread store the library's output in prints, or discard it if prints is NULL. */
void ostrel_capture(OstrelPrints* prints);

#endif
