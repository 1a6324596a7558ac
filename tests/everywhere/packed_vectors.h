/* Reads the rows that pack_vectors writes. */
#ifndef OSTREL_TESTS_EVERYWHERE_PACKED_VECTORS_H
#define OSTREL_TESTS_EVERYWHERE_PACKED_VECTORS_H

#include <stddef.h>

#define MOST_ARGUMENTS 4

/* Text refers to a text in the file. The empty text has no parts. */
struct text {
    const unsigned char* parts;
    unsigned long count;
};

/* Argument is an argument of a row, as described in pack_vectors.cpp. */
struct argument {
    unsigned long size; /* bytes of memory for the number or for each text; 0 for NULL */
    unsigned long number;
    unsigned long number_after;
    unsigned long texts;
    struct text before; /* the first of the texts */
    struct text after;
};

struct row {
    char label[128];
    char function[64];
    char kinds[MOST_ARGUMENTS + 1];
    unsigned long atois; /* a bit for each kind of C library to which the row applies */
    int flushed;
    long code;
    struct text out;
    struct text err;
    struct argument arguments[MOST_ARGUMENTS];
};

/* open_rows reads the whole file and returns the number of rows. It exits on failure. */
unsigned long open_rows(const char* path);
void next_row(struct row* row);
struct text next_text(const struct text* text);

/* text_length returns the number of bytes without a terminator. */
size_t text_length(const struct text* text);

/* write_text writes the bytes without a terminator and returns the end. */
char* write_text(const struct text* text, char* to);

#endif
