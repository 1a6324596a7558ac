#include "web/reasons/memory.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

// The region is large enough for the descriptions. It costs nothing, because the module later uses the same
// memory for other data.
constexpr std::size_t kRegion = std::size_t{3} << 20U;
constexpr std::size_t kAlignment = alignof(std::max_align_t);

char* region = nullptr;
char* next = nullptr;

}  // namespace

// NOLINTBEGIN(misc-new-delete-overloads)
void* operator new(std::size_t size)
{
    if (next == nullptr) {
        void* const memory = std::malloc(size);
        if (memory == nullptr) __builtin_trap();
        return memory;
    }
    char* const memory = next;
    next += (size + kAlignment - 1) / kAlignment * kAlignment;
    if (next > region + kRegion) __builtin_trap();
    return memory;
}

void operator delete(void* memory) noexcept
{
    if (next == nullptr) std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
// NOLINTEND(misc-new-delete-overloads)

namespace ostrel::web {

void begin_building()
{
    region = static_cast<char*>(std::malloc(kRegion));
    if (region == nullptr) __builtin_trap();
    next = region;
}

void end_building() { next = nullptr; }

void clear_building()
{
    std::memset(region, 0, kRegion);
    asm volatile("" : : "r"(region) : "memory");  // otherwise the compiler would remove the memset
    std::free(region);
}

}  // namespace ostrel::web
