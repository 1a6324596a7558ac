// Wraps the C library's string functions, so that a NULL argument ends the call. In WebAssembly, address 0
// can be read, so NULL would otherwise be judged as an empty value.

#include <cstddef>

extern "C" {

#define OSTREL_REQUIRE(pointer) \
    if ((pointer) == nullptr) __builtin_trap()

std::size_t __real_strlen(const char* text);
int __real_strcmp(const char* a, const char* b);
int __real_strncmp(const char* a, const char* b, std::size_t length);
char* __real_strchr(const char* text, int c);
char* __real_strrchr(const char* text, int c);
char* __real_strstr(const char* text, const char* part);
void* __real_memcpy(void* to, const void* from, std::size_t length);
std::size_t __wrap_strlen(const char* text);
int __wrap_strcmp(const char* a, const char* b);
int __wrap_strncmp(const char* a, const char* b, std::size_t length);
char* __wrap_strchr(const char* text, int c);
char* __wrap_strrchr(const char* text, int c);
char* __wrap_strstr(const char* text, const char* part);
void* __wrap_memcpy(void* to, const void* from, std::size_t length);

std::size_t __wrap_strlen(const char* text)
{
    OSTREL_REQUIRE(text);
    return __real_strlen(text);
}

int __wrap_strcmp(const char* a, const char* b)
{
    OSTREL_REQUIRE(a);
    OSTREL_REQUIRE(b);
    return __real_strcmp(a, b);
}

int __wrap_strncmp(const char* a, const char* b, std::size_t length)
{
    OSTREL_REQUIRE(a);
    OSTREL_REQUIRE(b);
    return __real_strncmp(a, b, length);
}

char* __wrap_strchr(const char* text, int c)
{
    OSTREL_REQUIRE(text);
    return __real_strchr(text, c);
}

char* __wrap_strrchr(const char* text, int c)
{
    OSTREL_REQUIRE(text);
    return __real_strrchr(text, c);
}

char* __wrap_strstr(const char* text, const char* part)
{
    OSTREL_REQUIRE(text);
    OSTREL_REQUIRE(part);
    return __real_strstr(text, part);
}

void* __wrap_memcpy(void* to, const void* from, std::size_t length)
{
    OSTREL_REQUIRE(to);
    OSTREL_REQUIRE(from);
    return __real_memcpy(to, from, length);
}
}
