// Included before each source of the library: what WASI's headers lack, and the loop that never ends.
#ifndef OSTREL_WEB_HOST_WASI_H
#define OSTREL_WEB_HOST_WASI_H

#ifdef __cplusplus

#if __has_feature(undefined_behavior_sanitizer)
// In WebAssembly address 0 can be read, so a NULL would be judged as an empty value. The compiler checks what is passed
// where a declaration excludes NULL, as WASI's do for some functions, and these for the others.
#include <stddef.h>
extern "C" {
[[gnu::nonnull]] int strncmp(const char* a, const char* b, size_t length);
[[gnu::nonnull]] char* strchr(const char* text, int c);
[[gnu::nonnull]] char* strrchr(const char* text, int c);
[[gnu::nonnull]] char* strstr(const char* text, const char* part);
}
#endif

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

extern "C" {
int system(const char* command);
void ostrel_never_returns(void);
}

namespace std {
using ::system;
}

// The library has one asm statement: the effect of a loop that is meant not to end. In a page it throws instead.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#define asm                 \
    ostrel_never_returns(); \
    asm
#pragma clang diagnostic pop

#endif

#endif
