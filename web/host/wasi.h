// This header is included before each source of the library. It declares functions that are missing from the
// WASI headers, and replaces the library's endless loop.
#ifndef OSTREL_WEB_HOST_WASI_H
#define OSTREL_WEB_HOST_WASI_H

#ifdef __cplusplus

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

// The library's only asm statement is in its endless loop. This macro makes the loop throw in a page.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#define asm                 \
    ostrel_never_returns(); \
    asm
#pragma clang diagnostic pop

#endif

#endif
