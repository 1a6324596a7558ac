#include "src/support/report.h"

#include <cstdarg>
#include <cstdio>

namespace ostrel {

int refuse(int code, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    std::fflush(nullptr);
    return code;
}

void inform(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    std::fflush(nullptr);
}

void remark(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
}

}  // namespace ostrel
