/* Runs packed vectors against a library, in plain C, on every target with a C compiler.

   usage: packed_vectors_test LIBRARY VECTORS

   Each row runs twice: once with each argument ending at an unreadable page, and once with each argument
   beginning at one. The last line of the output is "N rows, N failed". */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "call.h"
#include "packed_vectors.h"

/* These sizes are larger than any row needs. Unused pages cost nothing. */
#define AREA ((size_t)17 << 20)
#define PRINTS ((size_t)34 << 20)

enum edge { AT_END, AT_BEGIN };

static struct row row;
static char* areas[MOST_ARGUMENTS];
static char* printed;
static char* expected;
static FILE* report;

static void give_up(const char* what)
{
    fprintf(report != NULL ? report : stderr, "%s: %s\n", row.label, what);
    exit(2);
}

/* map returns memory between two unreadable pages. */
static char* map(size_t size)
{
    const size_t page = (size_t)sysconf(_SC_PAGESIZE);
    char* memory = mmap(NULL, size + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED || mprotect(memory + page, size, PROT_READ | PROT_WRITE) != 0)
        give_up("no memory");
    return memory + page;
}

static void on_signal(int signal_number)
{
    static const char text[] = " ended the process\n";
    signal(signal_number, SIG_DFL);
    if (write(fileno(report), row.label, strlen(row.label)) < 0 ||
        write(fileno(report), text, sizeof text - 1) < 0) {
        _exit(2);
    }
    raise(signal_number);
}

static char* place(size_t index, size_t size, enum edge edge)
{
    if (size > AREA) give_up("a text is too long");
    return edge == AT_BEGIN ? areas[index] : areas[index] + AREA - size;
}

static struct value load(size_t index, enum edge edge)
{
    const struct argument* argument = &row.arguments[index];
    const int number = (int)argument->number;
    struct text text = argument->before;
    struct value value = {NULL, 0, 0};
    unsigned long i;
    value.integer = number;
    value.natural = (unsigned)argument->number;
    if (row.kinds[index] == 'i' || row.kinds[index] == 'u' || argument->size == 0) return value;
    if (argument->texts == 0) {
        value.pointer = place(index, argument->size, edge);
        memcpy(value.pointer, &number, sizeof number);
        return value;
    }
    value.pointer = place(index, argument->texts * argument->size, edge);
    memset(value.pointer, 0, argument->texts * argument->size);
    for (i = 0; i < argument->texts; ++i) {
        if (i > 0) text = next_text(&text);
        write_text(&text, value.pointer + i * argument->size);
    }
    return value;
}

static int differ(const char* what, const char* actual, size_t size, const struct text* text)
{
    static const int shown = 200;
    const size_t wanted = text_length(text);
    if (wanted > PRINTS) give_up("a text is too long");
    write_text(text, expected);
    if (wanted == size && memcmp(expected, actual, size) == 0) return 0;
    fprintf(report, "%s: %s\n  expected %lu bytes \"%.*s\"\n  actual   %lu bytes \"%.*s\"\n", row.label, what,
            (unsigned long)wanted, wanted < 200 ? (int)wanted : shown, expected, (unsigned long)size,
            size < 200 ? (int)size : shown, actual);
    return 1;
}

static size_t file_size(int file)
{
    struct stat status;
    if (fstat(file, &status) != 0) give_up("fstat");
    return (size_t)status.st_size;
}

/* differ_printed returns whether the printed text differs, and empties the file for the next row. */
static int differ_printed(const char* what, int file, const struct text* text)
{
    const size_t size = file_size(file);
    if (size == 0 && text->count == 0) return 0;
    if (size > PRINTS || pread(file, printed, size, 0) != (ssize_t)size)
        give_up("cannot read what was printed");
    if (size > 0 && (ftruncate(file, 0) != 0 || lseek(file, 0, SEEK_SET) != 0)) give_up("ftruncate");
    return differ(what, printed, size, text);
}

static int differ_argument(char kind, const struct argument* argument, const char* actual)
{
    struct text text = argument->after;
    int number;
    int failed = 0;
    unsigned long i;
    if (actual == NULL || kind == 't') return 0;
    if (kind == 'n') {
        memcpy(&number, actual, sizeof number);
        if (number == (int)argument->number_after) return 0;
        fprintf(report, "%s: number %d instead of %d\n", row.label, number, (int)argument->number_after);
        return 1;
    }
    for (i = 0; i < argument->texts; ++i, actual += argument->size) {
        const char* terminator = memchr(actual, '\0', argument->size);
        if (i > 0) text = next_text(&text);
        failed |= differ("buffer", actual,
                         terminator != NULL ? (size_t)(terminator - actual) : argument->size, &text);
    }
    return failed;
}

static int run(void* function, enum edge edge)
{
    struct value values[MOST_ARGUMENTS];
    size_t flushed;
    int code;
    int failed = 0;
    size_t i;
    for (i = 0; row.kinds[i] != '\0'; ++i) values[i] = load(i, edge);
    if (!call(function, row.kinds, values, &code)) give_up("a function of an unknown type");
    flushed = file_size(STDOUT_FILENO);
    fflush(stdout);
    if (code != (int)row.code) {
        fprintf(report, "%s: code %d instead of %d\n", row.label, code, (int)row.code);
        failed = 1;
    }
    if ((flushed == file_size(STDOUT_FILENO)) != row.flushed) {
        fprintf(report, "%s: %s\n", row.label, row.flushed ? "not flushed" : "flushed");
        failed = 1;
    }
    failed |= differ_printed("standard output", STDOUT_FILENO, &row.out);
    failed |= differ_printed("standard error", STDERR_FILENO, &row.err);
    for (i = 0; row.kinds[i] != '\0'; ++i)
        failed |= differ_argument(row.kinds[i], &row.arguments[i], values[i].pointer);
    return failed;
}

/* atoi_at_hand returns the kind of C library. For a number beyond an int, atoi returns the low 32 bits of the
   nearest 64-bit long (1), the nearest int (2), or the low 32 bits of the number itself (4). */
static unsigned long atoi_at_hand(void)
{
    switch (atoi("99999999999999999999")) {
        case -1:
            return 1;
        case 2147483647:
            return 2;
        case 1661992959:
            return 4;
        default:
            give_up("the vectors do not cover a C library with such an atoi");
            return 0;
    }
}

static void print_to_file(FILE* stream, int mode, size_t size)
{
    FILE* file = tmpfile();
    if (file == NULL || dup2(fileno(file), fileno(stream)) < 0) give_up("no file to print to");
    setvbuf(stream, mode == _IOFBF ? map(size) : NULL, mode, size);
}

int main(int argc, char** argv)
{
    unsigned long rows;
    unsigned long failed = 0;
    unsigned long run_rows = 0;
    unsigned long i;
    const unsigned long atoi_here = atoi_at_hand();
    void* library;
    if (argc != 3) give_up("usage: packed_vectors_test LIBRARY VECTORS");
    rows = open_rows(argv[2]);
    library = dlopen(argv[1], RTLD_NOW);
    if (library == NULL) give_up(dlerror());
    report = fdopen(dup(STDOUT_FILENO), "w");
    if (report == NULL) give_up("no report");
    for (i = 0; i < MOST_ARGUMENTS; ++i) areas[i] = map(AREA);
    printed = map(PRINTS);
    expected = map(PRINTS);
    print_to_file(stdout, _IOFBF, PRINTS);
    print_to_file(stderr, _IONBF, 0);
    signal(SIGSEGV, on_signal);
    signal(SIGBUS, on_signal);
    signal(SIGABRT, on_signal);

    for (i = 0; i < rows; ++i) {
        void* function;
        next_row(&row);
        if ((row.atois & atoi_here) == 0) continue;
        ++run_rows;
        function = dlsym(library, row.function);
        if (function == NULL) {
            fprintf(report, "%s: is not exported\n", row.label);
            ++failed;
        } else {
            failed += (unsigned long)(run(function, AT_END) | run(function, AT_BEGIN));
        }
    }
    fprintf(report, "%lu rows, %lu failed\n", run_rows, failed);
    /* A run without rows proves nothing. */
    return failed > 0 || run_rows == 0 || fclose(report) != 0;
}
