#include "packed_vectors.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const unsigned char* at;
static const unsigned char* end;

static void give_up(const char* what, const char* path)
{
    fprintf(stderr, "%s: %s\n", path, what);
    exit(2);
}

static unsigned long number_from(const unsigned char** from)
{
    const unsigned char* bytes = *from;
    if (end - bytes < 4) give_up("the file ends too early", "vectors");
    *from += 4;
    return bytes[0] | (unsigned long)bytes[1] << 8 | (unsigned long)bytes[2] << 16 |
           (unsigned long)bytes[3] << 24;
}

/* signed_number interprets 32 bits as a signed number, for any width of long. */
static long signed_number(unsigned long number)
{
    return number > 0x7FFFFFFFUL ? -(long)(0xFFFFFFFFUL - number) - 1 : (long)number;
}

static void read_string(char* to, size_t capacity)
{
    const unsigned long length = number_from(&at);
    if (length >= capacity || (unsigned long)(end - at) < length) give_up("a string is too long", "vectors");
    memcpy(to, at, length);
    to[length] = '\0';
    at += length;
}

/* text_from reads the number of a text's parts, and skips the parts. */
static struct text text_from(const unsigned char** from)
{
    struct text text;
    unsigned long i;
    text.count = number_from(from);
    text.parts = *from;
    for (i = 0; i < text.count; ++i) {
        unsigned long length;
        number_from(from);
        length = number_from(from);
        if ((unsigned long)(end - *from) < length) give_up("a text is too long", "vectors");
        *from += length;
    }
    return text;
}

struct text next_text(const struct text* text)
{
    const unsigned char* from = text->parts - 4;
    text_from(&from);
    return text_from(&from);
}

size_t text_length(const struct text* text)
{
    const unsigned char* from = text->parts;
    size_t total = 0;
    unsigned long i;
    for (i = 0; i < text->count; ++i) {
        const unsigned long times = number_from(&from);
        const unsigned long length = number_from(&from);
        total += times * length;
        from += length;
    }
    return total;
}

char* write_text(const struct text* text, char* to)
{
    const unsigned char* from = text->parts;
    unsigned long i;
    for (i = 0; i < text->count; ++i) {
        const unsigned long times = number_from(&from);
        const unsigned long length = number_from(&from);
        const size_t total = times * length;
        size_t made = total < length ? total : length;
        memcpy(to, from, made);
        /* Doubles the copied size each time because copying single bytes is slow under emulation. */
        while (made < total) {
            const size_t more = made < total - made ? made : total - made;
            memcpy(to + made, to, more);
            made += more;
        }
        to += total;
        from += length;
    }
    return to;
}

unsigned long open_rows(const char* path)
{
    static const char kMagic[] = "ostrel vectors 3\n";
    unsigned char* contents;
    size_t size;
    FILE* file = fopen(path, "rb");
    if (file == NULL) give_up("cannot be read; the build with preset gcc makes it", path);
    fseek(file, 0, SEEK_END);
    size = (size_t)ftell(file);
    rewind(file);
    contents = malloc(size + 1);
    if (contents == NULL || fread(contents, 1, size, file) != size) give_up("cannot be read whole", path);
    fclose(file);
    at = contents;
    end = contents + size;
    if (size < sizeof kMagic || memcmp(at, kMagic, sizeof kMagic - 1) != 0) give_up("holds no vectors", path);
    at += sizeof kMagic - 1;
    return number_from(&at);
}

static struct text read_texts(unsigned long count)
{
    struct text first = {NULL, 0};
    unsigned long i;
    for (i = 0; i < count; ++i) {
        const struct text text = text_from(&at);
        if (i == 0) first = text;
    }
    return first;
}

void next_row(struct row* row)
{
    size_t i;
    read_string(row->label, sizeof row->label);
    read_string(row->function, sizeof row->function);
    read_string(row->kinds, sizeof row->kinds);
    row->atois = number_from(&at);
    row->flushed = number_from(&at) != 0;
    row->code = signed_number(number_from(&at));
    row->out = text_from(&at);
    row->err = text_from(&at);
    for (i = 0; row->kinds[i] != '\0'; ++i) {
        struct argument* const argument = &row->arguments[i];
        argument->size = number_from(&at);
        argument->number = number_from(&at);
        argument->number_after = number_from(&at);
        argument->texts = number_from(&at);
        argument->before = read_texts(argument->texts);
        argument->after = read_texts(row->kinds[i] == 'b' ? argument->texts : 0);
    }
}
