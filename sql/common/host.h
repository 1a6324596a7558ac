/*
 * Replacements for C library functions, included before each source file of the library. A database process
 * can have several threads, and the library must not write to or flush its standard output, so print.c
 * receives the output.
 */
#ifndef OSTREL_SQL_HOST_H
#define OSTREL_SQL_HOST_H

#ifdef __cplusplus
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
extern "C" {
#else
#include <stdarg.h>
#include <stdio.h>
#endif

__attribute__((format(printf, 1, 0))) int ostrel_host_vprintf(const char* format, va_list arguments);
/* The library's only message to standard error is discarded. */
__attribute__((format(printf, 2, 3))) int ostrel_host_fprintf(FILE* stream, const char* format, ...);
int ostrel_host_putchar(int c);
int ostrel_host_puts(const char* text);
int ostrel_host_fflush(FILE* stream);
/* This function runs no command. The check that would run a shell is never called. */
int ostrel_host_system(const char* command);

#ifdef __cplusplus
}

namespace std {
using ::ostrel_host_fflush;
using ::ostrel_host_fprintf;
using ::ostrel_host_putchar;
using ::ostrel_host_puts;
using ::ostrel_host_system;
using ::ostrel_host_vprintf;
}  // namespace std

#define vprintf ostrel_host_vprintf
#define fprintf ostrel_host_fprintf
#define putchar ostrel_host_putchar
#define puts ostrel_host_puts
#define fflush ostrel_host_fflush
#define system ostrel_host_system

/* The gateway's two utilities do not exist in a database process. */
#define cmsUtl_strcmp ostrel_host_has_no_strcmp
#define htmlToText ostrel_host_has_no_conversion
#endif

#endif
