// The C library's output functions. They support only the conversions that the library's messages use.

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "web/host/imports.h"

namespace {

constexpr int kOut = 1;
constexpr int kErr = 2;

void write_number(int stream, int number)
{
    char digits[12];
    char* const end = digits + sizeof digits;
    char* begin = end;
    unsigned rest = number < 0 ? 0U - static_cast<unsigned>(number) : static_cast<unsigned>(number);
    do {
        *--begin = static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (number < 0) *--begin = '-';
    page_write(stream, begin, static_cast<std::size_t>(end - begin), false);
}

void print(int stream, const char* format, va_list arguments)
{
    for (;;) {
        const char* const plain = format;
        while (*format != '%' && *format != '\0') ++format;
        const auto length = static_cast<std::size_t>(format - plain);
        if (*format == '\0') return page_write(stream, plain, length, true);
        if (length > 0) page_write(stream, plain, length, false);
        ++format;
        if (*format == 's') {
            const char* const text = va_arg(arguments, const char*);
            page_write(stream, text, std::strlen(text), false);
        } else if (*format == 'd') {
            write_number(stream, va_arg(arguments, int));
        } else if (*format == 'c') {
            const char byte = static_cast<char>(va_arg(arguments, int));
            page_write(stream, &byte, 1, false);
        } else if (std::strncmp(format, ".*s", 3) == 0) {
            const auto most = static_cast<std::size_t>(va_arg(arguments, int));
            const char* const text = va_arg(arguments, const char*);
            page_write(stream, text, strnlen(text, most), false);
            format += 2;
        } else {
            __builtin_trap();
        }
        ++format;
    }
}

}  // namespace

extern "C" {

#undef stderr
FILE* const stderr = nullptr;

int vprintf(const char* format, va_list arguments)
{
    print(kOut, format, arguments);
    return 0;
}

// fprintf is called only for standard error.
int fprintf(FILE* /*stream*/, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    print(kErr, format, arguments);
    va_end(arguments);
    return 0;
}

int putchar(int c)
{
    const char byte = static_cast<char>(c);
    page_write(kOut, &byte, 1, true);
    return c;
}

int puts(const char* text)
{
    page_write(kOut, text, std::strlen(text), false);
    page_write(kOut, "\n", 1, true);
    return 0;
}

int fflush(FILE* /*stream*/)
{
    page_flush();
    return 0;
}
}
