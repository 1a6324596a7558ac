// Assertions that are active in every build type. A NULL value is a bug in the caller and ends the process.
#ifndef OSTREL_SUPPORT_ASSERTION_H
#define OSTREL_SUPPORT_ASSERTION_H

namespace ostrel {

// fail_assertion reports the failure through the C library's own assertion hook and ends the process.
[[noreturn]] void fail_assertion(const char* condition, const char* module, const char* function,
                                 unsigned line);

// require_value asserts that value_p is not NULL and returns it. By default, function and line are those of
// the calling check.
inline const char* require_value(const char* value_p, const char* module, unsigned line = __builtin_LINE(),
                                 const char* function = __builtin_FUNCTION())
{
    if (value_p == nullptr) fail_assertion("value_p != ((void *)0)", module, function, line);
    return value_p;
}

}  // namespace ostrel

#endif
