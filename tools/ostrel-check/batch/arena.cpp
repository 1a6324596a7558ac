#include "batch/arena.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <new>
#include <system_error>

namespace ostrel::tool {

void Unmap::operator()(Arena* arena) const { munmap(arena, sizeof *arena); }

std::unique_ptr<Arena, Unmap> map_arena()
{
    void* memory = mmap(nullptr, sizeof(Arena), PROT_READ | PROT_WRITE,
                        MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "cannot map memory");
    return std::unique_ptr<Arena, Unmap>(new (memory) Arena);
}

void release_pages(char* begin, std::size_t used, std::size_t kept)
{
    if (used <= kept) return;
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto address = reinterpret_cast<std::uintptr_t>(begin);
    const std::uintptr_t from = (address + kept + page - 1) / page * page;
    const std::uintptr_t to = (address + used) / page * page;
    if (from < to) madvise(begin + (from - address), to - from, MADV_REMOVE);
}

void release_prints(calling::Prints& prints)
{
    release_pages(prints.out.bytes, prints.out.size, kChunk);
    release_pages(prints.err.bytes, prints.err.size, kChunk);
}

}  // namespace ostrel::tool
