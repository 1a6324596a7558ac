#include "src/support/assertion.h"

#include <cstdlib>

// The hook is declared here because <assert.h> does not declare it if NDEBUG is defined. uClibc is tested for
// first, because it also claims to be glibc.
extern "C" {
#if defined(__UCLIBC__)
// NOLINTNEXTLINE(readability-redundant-declaration)  it is redundant where NDEBUG is not defined
void __assert(const char* condition, const char* file, int line, const char* function);
#elif defined(__GLIBC__)
[[noreturn]] void __assert_fail(const char* condition, const char* file, unsigned line, const char* function);
#else  // musl
[[noreturn]] void __assert_fail(const char* condition, const char* file, int line, const char* function);
#endif
}

namespace ostrel {

void fail_assertion(const char* condition, const char* module, const char* function, unsigned line)
{
#if defined(__UCLIBC__)
    __assert(condition, module, static_cast<int>(line), function);
    std::abort();  // the hook can be configured to report without ending the process
#elif defined(__GLIBC__)
    __assert_fail(condition, module, line, function);
#else
    __assert_fail(condition, module, static_cast<int>(line), function);
#endif
}

}  // namespace ostrel
