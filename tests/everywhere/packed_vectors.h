/* Reads the rows that pack_vectors writes. */
#ifndef OSTREL_TESTS_EVERYWHERE_PACKED_VECTORS_H
#define OSTREL_TESTS_EVERYWHERE_PACKED_VECTORS_H

#include <stddef.h>

#define MOST_ARGUMENTS 4

/* Text is where a text stands in the file; no parts are the empty text. */
struct text {
    const unsigned char* parts;
    unsigned long count;
    int is_null;
};

struct argument {
    char kind;
    unsigned long number; /* i, u, n: before the call */
    unsigned long number_after;
    int is_null;        /* n */
    struct text before; /* t; b: the first of them */
    struct text after;
    unsigned long buffers; /* b */
    unsigned long size;    /* b: of each */
};

struct row {
    char label[128];
    char function[64];
    char kinds[MOST_ARGUMENTS + 1];
    unsigned long atois; /* a bit for each kind of C library with which it holds */
    int flushed;
    long code;
    struct text out;
    struct text err;
    struct argument arguments[MOST_ARGUMENTS];
};

/* open_rows reads the whole file and gives the number of rows; it ends the program when it cannot. */
unsigned long open_rows(const char* path);

/* next_row reads a row. */
void next_row(struct row* row);

/* next_text gives the text that stands behind this one, as of several buffers. */
struct text next_text(const struct text* text);

/* text_length is the number of bytes without a terminator. */
size_t text_length(const struct text* text);

/* write_text writes the bytes without a terminator and gives the place behind them. */
char* write_text(const struct text* text, char* to);

#endif
