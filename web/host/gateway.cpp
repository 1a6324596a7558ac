// The library's environment: atoi, assertions, the wireless driver and the two utilities.

#include <unistd.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "src/support/character_references.h"
#include "web/host/imports.h"

namespace {

bool has_long_of_64_bits = false;
bool has_compare = false;
bool has_convert = false;
int next_channel = 0;

constexpr int kNoChannel = -1;

}  // namespace

extern "C" {

// ostrel_configure sets the gateway's properties, and records which of the two utilities the page supplies.
void ostrel_configure(bool is_long_of_64_bits, bool compares, bool converts);

void ostrel_configure(bool is_long_of_64_bits, bool compares, bool converts)
{
    has_long_of_64_bits = is_long_of_64_bits;
    has_compare = compares;
    has_convert = converts;
}

// A number that does not fit in a long saturates. The result is the low 32 bits of the long.
int atoi(const char* text)
{
    while (*text == ' ' || (*text >= '\t' && *text <= '\r')) ++text;
    const bool is_negative = *text == '-';
    if (*text == '-' || *text == '+') ++text;
    std::uint64_t most = has_long_of_64_bits ? std::numeric_limits<std::int64_t>::max()
                                             : std::numeric_limits<std::int32_t>::max();
    if (is_negative) ++most;
    std::uint64_t number = 0;
    for (; *text >= '0' && *text <= '9'; ++text) {
        const auto digit = static_cast<unsigned>(*text - '0');
        number = number > (most - digit) / 10 ? most : number * 10 + digit;
    }
    const auto low = static_cast<std::uint32_t>(number);
    return static_cast<int>(is_negative ? 0 - low : low);
}

void __assert_fail(const char* condition, const char* file, int line, const char* function)
{
    page_fail(condition, file, line, function);
}

void abort() { __builtin_trap(); }

void ostrel_never_returns();
void ostrel_never_returns() { page_never_return(); }

int cmsUtl_strcmp(const char* a, const char* b);
int cmsUtl_strcmp(const char* a, const char* b)
{
    return has_compare ? page_compare(a, b) : std::strcmp(a, b);
}

int htmlToText(char* text, std::size_t length);
int htmlToText(char* text, std::size_t length)
{
    if (has_convert) {
        page_convert(text, length);
    } else {
        ostrel::convert_references(text, length);
    }
    return 0;
}

// These functions supply the page's channel list in place of the file that the wireless driver's tool writes.
int system(const char* /*command*/) { return 0; }

FILE* fopen(const char* /*name*/, const char* /*mode*/)
{
    next_channel = 0;
    return reinterpret_cast<FILE*>(&next_channel);
}

int fscanf(FILE* /*file*/, const char* format, ...)
{
    const int channel = page_channel(next_channel++);
    if (channel == kNoChannel) return EOF;
    va_list arguments;
    va_start(arguments, format);
    *va_arg(arguments, int*) = channel;
    va_end(arguments);
    return 1;
}

int fclose(FILE* /*file*/) { return 0; }

int unlink(const char* /*name*/) { return 0; }
}
