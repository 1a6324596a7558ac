#include "oracle/driver.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace {

constexpr std::string_view kList = "/var/hnapwl0chlist";
constexpr std::string_view kCommand = "wlctl -i wl0 channels > /var/hnapwl0chlist";

ostrel::oracle::Driver* driver = nullptr;

bool is_list(const char* filename) { return driver != nullptr && filename == kList; }

}  // namespace

// A function defined in a program replaces the C library's function of that name, even for calls from the
// library under test.
extern "C" {

int system(const char* command)
{
    if (driver == nullptr || command == nullptr || command != kCommand) std::abort();
    driver->write_list();
    return 0;
}

FILE* fopen(const char* filename, const char* modes)
{
    using Open = FILE* (*)(const char*, const char*);
    static const auto real = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "fopen"));
    return is_list(filename) ? driver->open_list(modes) : real(filename, modes);
}

int unlink(const char* name) noexcept
{
    if (!is_list(name)) return unlinkat(AT_FDCWD, name, 0);
    driver->delete_list();
    return 0;
}

}  // extern "C"

namespace ostrel::oracle {

Driver::Driver(std::vector<int> channels) : channels_(std::move(channels)) { driver = this; }

Driver::~Driver() { driver = nullptr; }

void Driver::write_list()
{
    for (const int channel : channels_) content_ += std::to_string(channel) + " ";
    content_ += '\n';
    has_left_its_list_ = true;
}

std::FILE* Driver::open_list(const char* modes)
{
    if (has_left_its_list_) return fmemopen(content_.data(), content_.size(), modes);
    errno = ENOENT;
    return nullptr;
}

}  // namespace ostrel::oracle
