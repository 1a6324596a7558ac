// Included before each source of the library: what WASI's headers lack, and the loop that never ends.
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

// The library has one asm statement: the effect of a loop that is meant not to end. In a page it throws instead.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#define asm                 \
    ostrel_never_returns(); \
    asm
#pragma clang diagnostic pop

#endif

#endif
