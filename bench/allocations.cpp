#include "bench/allocations.h"

namespace {

std::size_t count = 0;

}  // namespace

// The names by which glibc offers its own allocator to those who stand in front of it.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t members, std::size_t size);
extern "C" void* __libc_realloc(void* block, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)

extern "C" void* malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}

extern "C" void* calloc(std::size_t members, std::size_t size)
{
    ++count;
    return __libc_calloc(members, size);
}

extern "C" void* realloc(void* block, std::size_t size)
{
    ++count;
    return __libc_realloc(block, size);
}

namespace ostrel::bench {

std::size_t allocations() { return count; }

}  // namespace ostrel::bench
