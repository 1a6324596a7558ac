// Functions that the page supplies.
#ifndef OSTREL_WEB_HOST_IMPORTS_H
#define OSTREL_WEB_HOST_IMPORTS_H

#include <cstddef>

#define OSTREL_IMPORT(name) __attribute__((import_module("ostrel"), import_name(#name)))

extern "C" {

// page_write receives a message in parts. ends is true for the last part.
OSTREL_IMPORT(write) void page_write(int stream, const char* text, std::size_t length, bool ends);

OSTREL_IMPORT(flush) void page_flush();

// The next two functions throw a JavaScript error.
[[noreturn]] OSTREL_IMPORT(fail) void page_fail(const char* condition, const char* module, int line,
                                                const char* function);
[[noreturn]] OSTREL_IMPORT(never_return) void page_never_return();

// page_channel returns the channel at an index in the wireless driver's list, or -1 at the end of the list.
OSTREL_IMPORT(channel) int page_channel(int index);

// The two utilities, if the page supplies them.
OSTREL_IMPORT(compare) int page_compare(const char* a, const char* b);
OSTREL_IMPORT(convert) void page_convert(char* text, std::size_t length);
}

#undef OSTREL_IMPORT

#endif
