/* The part of uClibc's <assert.h> that declares its assertion hook. */
#ifndef OSTREL_TESTS_EVERYWHERE_UCLIBC_ASSERT_H
#define OSTREL_TESTS_EVERYWHERE_UCLIBC_ASSERT_H

#ifdef __cplusplus
extern "C" {
#endif

void __assert(const char* condition, const char* file, int line, const char* function);

#ifdef __cplusplus
}
#endif

#endif
