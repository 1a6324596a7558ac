#include "tests/rules/driver.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view kList = "/var/hnapwl0chlist";
constexpr std::string_view kCommand = "wlctl -i wl0 channels > /var/hnapwl0chlist";

const std::vector<int>* listed = nullptr;
std::string content;
bool is_there = false;

}  // namespace

// These functions of the C library are called in the program rather than there, by the library under test too.
extern "C" {

int system(const char* command)
{
    if (listed == nullptr || command == nullptr || command != kCommand) std::abort();
    content.clear();
    for (const int channel : *listed) content += std::to_string(channel) + " ";
    content += '\n';
    is_there = true;
    return 0;
}

FILE* fopen(const char* path, const char* mode)
{
    using Open = FILE* (*)(const char*, const char*);
    static const auto real = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "fopen"));
    if (path != kList) return real(path, mode);
    if (is_there) return fmemopen(content.data(), content.size(), mode);
    errno = ENOENT;
    return nullptr;
}

int unlink(const char* path) noexcept
{
    if (path != kList) return unlinkat(AT_FDCWD, path, 0);
    is_there = false;
    return 0;
}

}  // extern "C"

namespace ostrel::tests {

Driver::Driver(const std::vector<int>& channels) { listed = &channels; }

Driver::~Driver()
{
    listed = nullptr;
    is_there = false;
}

bool Driver::has_left_its_list() const { return is_there; }

}  // namespace ostrel::tests
