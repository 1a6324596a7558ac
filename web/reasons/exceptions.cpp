// This module is built without support for exceptions, so throwing one traps.

#include <__verbose_abort>
#include <cstddef>

extern "C" {

void* __cxa_allocate_exception(std::size_t /*size*/) { __builtin_trap(); }
void __cxa_throw(void* /*exception*/, void* /*type*/, void (* /*destroy*/)(void*)) { __builtin_trap(); }

// The C++ library's versions of the next two functions would pull in printf.
[[noreturn]] void abort_message(const char* format, ...);
[[noreturn]] void abort_message(const char* /*format*/, ...) { __builtin_trap(); }
}

_LIBCPP_BEGIN_NAMESPACE_STD

void __libcpp_verbose_abort(const char* /*format*/, ...) { __builtin_trap(); }

_LIBCPP_END_NAMESPACE_STD
