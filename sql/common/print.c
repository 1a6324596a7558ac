#include "sql/common/print.h"

#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "sql/common/host.h"

static __thread OstrelPrints* captured;

void ostrel_capture(OstrelPrints* prints) { captured = prints; }

static bool reserve(OstrelPrints* prints, size_t size)
{
    if (prints->room - prints->size > size) return true;
    const size_t room = 2 * prints->room + size + 1;
    char* const bytes = realloc(prints->bytes, room);
    prints->is_lost = prints->is_lost || bytes == NULL;
    if (bytes == NULL) return false;
    prints->bytes = bytes;
    prints->room = room;
    return true;
}

static void print(const char* bytes, size_t size)
{
    if (captured == NULL || !reserve(captured, size)) return;
    memcpy(captured->bytes + captured->size, bytes, size);
    captured->size += size;
    captured->bytes[captured->size] = '\0';
}

int ostrel_host_vprintf(const char* format, va_list arguments)
{
    if (captured == NULL) return 0;
    va_list again;
    va_copy(again, arguments);
    const int size = vsnprintf(NULL, 0, format, arguments);
    if (size < 0) {
        captured->is_lost = true;
    } else if (reserve(captured, (size_t)size)) {
        vsnprintf(captured->bytes + captured->size, (size_t)size + 1, format, again);
        captured->size += (size_t)size;
    }
    va_end(again);
    return size;
}

int ostrel_host_fprintf(FILE* stream, const char* format, ...)
{
    (void)stream;
    (void)format;
    return 0;
}

int ostrel_host_putchar(int c)
{
    const char byte = (char)c;
    print(&byte, 1);
    return c;
}

int ostrel_host_puts(const char* text)
{
    print(text, strlen(text));
    print("\n", 1);
    return 0;
}

int ostrel_host_fflush(FILE* stream)
{
    (void)stream;
    return 0;
}

int ostrel_host_system(const char* command)
{
    (void)command;
    return -1;
}
