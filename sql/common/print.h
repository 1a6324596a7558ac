/* Printing: the output of the library's sources is kept in memory. */
#ifndef OSTREL_SQL_PRINT_H
#define OSTREL_SQL_PRINT_H

#include <stdbool.h>
#include <stddef.h>

typedef struct {
    char* bytes; /* allocated with malloc, or NULL; followed by a NUL byte */
    size_t size;
    size_t room;
    bool is_lost; /* there was not enough memory for all of it */
} OstrelPrints;

/* ostrel_capture stores the standard output of this thread from now on. With NULL, it is discarded. */
void ostrel_capture(OstrelPrints* prints);

#endif
