/* Printing: what the library's sources call here in place of the C library's streams. */
#ifndef OSTREL_SQL_PRINT_H
#define OSTREL_SQL_PRINT_H

#include <stdbool.h>
#include <stddef.h>

typedef struct {
    char* bytes; /* of malloc, or NULL; a NUL byte stands after the last one */
    size_t size;
    size_t room;
    bool is_lost; /* there was no memory for all of it */
} OstrelPrints;

/* ostrel_capture keeps what this thread prints from now on to standard output. NULL: it is discarded. */
void ostrel_capture(OstrelPrints* prints);

#endif
