// Tests that the library allocates nothing. This program is a host between the library and the C library: it
// defines malloc and its family, which record their caller, and the imported functions that could allocate,
// which record that the library is inside them.
//
// Two allocations are allowed: the buffer of a stream, which the C library allocates at the first output or
// input, and the stream that WLAN_check_channel opens.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/hostile.h"
#include "vectors/rows.h"

extern "C" {
// The C library's own allocator, under names that no program defines.
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}

namespace {

constexpr char kListFile[] = "/var/hnapwl0chlist";

struct Request {
    const char* inside;  // the C library function that the library called, or NULL
    const void* caller;  // where the allocator was called from
};

struct Watch {
    bool on = false;
    const char* inside = nullptr;
    std::size_t count = 0;
    Request requests[64];
};

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
Watch watch;
std::string list_file;
std::string list_command;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

void note(const void* caller)
{
    if (!watch.on) return;
    if (watch.count < std::size(watch.requests)) watch.requests[watch.count] = {watch.inside, caller};
    ++watch.count;
}

// Inside marks the duration of a call to the C library.
class Inside {
 public:
    explicit Inside(const char* name) { watch.inside = name; }
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;
    ~Inside() { watch.inside = nullptr; }
};

template <typename Function>
Function* original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

void* malloc(std::size_t size) noexcept
{
    note(__builtin_return_address(0));
    return __libc_malloc(size);
}

void* calloc(std::size_t nmemb, std::size_t size) noexcept
{
    note(__builtin_return_address(0));
    return __libc_calloc(nmemb, size);
}

void* realloc(void* ptr, std::size_t size) noexcept
{
    note(__builtin_return_address(0));
    return __libc_realloc(ptr, size);
}

void* memalign(std::size_t alignment, std::size_t size) noexcept
{
    note(__builtin_return_address(0));
    return __libc_memalign(alignment, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    note(__builtin_return_address(0));
    return __libc_memalign(alignment, size);
}

int posix_memalign(void** memptr, std::size_t alignment, std::size_t size) noexcept
{
    note(__builtin_return_address(0));
    *memptr = __libc_memalign(alignment, size);
    return *memptr != nullptr ? 0 : ENOMEM;
}

int vprintf(const char* format, std::va_list arg)
{
    const Inside inside("vprintf");
    return std::vfprintf(stdout, format, arg);
}

int fprintf(std::FILE* stream, const char* format, ...)
{
    const Inside inside("fprintf");
    std::va_list arguments;
    va_start(arguments, format);
    const int result = std::vfprintf(stream, format, arguments);
    va_end(arguments);
    return result;
}

int puts(const char* s)
{
    const Inside inside("puts");
    return original<int(const char*)>("puts")(s);
}

int putchar(int c)
{
    const Inside inside("putchar");
    return original<int(int)>("putchar")(c);
}

int fflush(std::FILE* stream)
{
    static auto* const real = original<int(std::FILE*)>("fflush");
    const Inside inside("fflush");
    return real(stream);
}

std::FILE* fopen(const char* filename, const char* modes)
{
    static auto* const real = original<std::FILE*(const char*, const char*)>("fopen");
    const Inside inside("fopen");
    return real(std::strcmp(filename, kListFile) == 0 ? list_file.c_str() : filename, modes);
}

int fscanf(std::FILE* stream, const char* format, ...)
{
    const Inside inside("fscanf");
    std::va_list arguments;
    va_start(arguments, format);
    const int result = std::vfscanf(stream, format, arguments);
    va_end(arguments);
    return result;
}

int fclose(std::FILE* stream)
{
    static auto* const real = original<int(std::FILE*)>("fclose");
    const Inside inside("fclose");
    return real(stream);
}

// system runs list_command instead of the driver's tool, so the file with the fixed name is not touched.
int system(const char* /*command*/)
{
    static auto* const real = original<int(const char*)>("system");
    const Inside inside("system");
    return real(list_command.c_str());
}

int unlink(const char* name) noexcept
{
    static auto* const real = original<int(const char*)>("unlink");
    return real(std::strcmp(name, kListFile) == 0 ? list_file.c_str() : name);
}

}  // extern "C"

namespace ostrel::tests {

using calling::Caller;
using catalogue::Function;
using catalogue::Value;
using vectors::read_cases;
using vectors::Row;

namespace {

constexpr std::size_t kMegabyte = std::size_t{1} << 20;

// kStreamBuffer is the C library's function that allocates the buffer of a stream.
constexpr char kStreamBuffer[] = "_IO_file_doallocate";

using Counts = std::map<std::string, std::size_t>;

std::string symbol_at(const void* address)
{
    Dl_info info{};
    if (dladdr(address, &info) == 0) return "?";
    return info.dli_sname != nullptr ? info.dli_sname
                                     : std::string("a function without a name in ") + info.dli_fname;
}

bool is_allowed(const Request& request)
{
    if (request.inside == nullptr) return false;
    const std::string inside = request.inside;
    if (inside == "fopen") return true;
    const bool prints_or_reads = inside == "vprintf" || inside == "fprintf" || inside == "puts" ||
                                 inside == "putchar" || inside == "fscanf";
    return prints_or_reads && symbol_at(request.caller) == kStreamBuffer;
}

// FreshStreams replaces standard output and error with streams that have no buffer yet.
class FreshStreams {
 public:
    FreshStreams()
    {
        stdout = std::fopen("/dev/null", "w");
        stderr = std::fopen("/dev/null", "w");
    }
    FreshStreams(const FreshStreams&) = delete;
    FreshStreams& operator=(const FreshStreams&) = delete;
    ~FreshStreams()
    {
        std::fclose(stdout);
        std::fclose(stderr);
        stdout = saved_out_;
        stderr = saved_err_;
    }

 private:
    std::FILE* saved_out_ = stdout;
    std::FILE* saved_err_ = stderr;
};

void count_requests(Caller& caller, Counts& allowed, Counts& forbidden)
{
    const FreshStreams streams;
    watch.count = 0;
    watch.on = true;
    caller.call();
    watch.on = false;
    EXPECT_LE(watch.count, std::size(watch.requests));
    for (std::size_t i = 0; i < std::min(watch.count, std::size(watch.requests)); ++i) {
        const Request& request = watch.requests[i];
        const std::string name = std::string(request.inside != nullptr ? request.inside : "no import") +
                                 " by " + symbol_at(request.caller);
        ++(is_allowed(request) ? allowed : forbidden)[name];
    }
}

// report prints the figure that scripts/prove shows in its table.
void report(const char* what, std::size_t calls, const Counts& allowed)
{
    std::printf("%s: %zu calls, no allocation of the library's", what, calls);
    for (const auto& [name, count] : allowed) std::printf("; %s: %zu", name.c_str(), count);
    std::printf("\n");
}

TEST(Allocation, AWatchedRequestIsSeenAndNamed)
{
    // The compiler knows strdup and could assume that a direct call does not change the watch.
    char* (*volatile duplicate)(const char*) = strdup;
    watch.count = 0;
    watch.on = true;
    char* copy = duplicate("text");
    watch.on = false;
    std::free(copy);  // NOLINT(cppcoreguidelines-no-malloc)
    ASSERT_EQ(1, watch.count);
    EXPECT_EQ(nullptr, watch.requests[0].inside);
    EXPECT_EQ("__strdup", symbol_at(watch.requests[0].caller).substr(0, 8));
    EXPECT_FALSE(is_allowed(watch.requests[0]));
}

TEST(Allocation, NoneInAnyVector)
{
    const std::vector<Row> rows = read_cases();
    Counts allowed;
    Caller caller;
    for (const Row& row : rows) {
        Counts forbidden;
        caller.load(*row.given.function, row.given.values);
        count_requests(caller, allowed, forbidden);
        EXPECT_EQ(Counts(), forbidden) << row.text.substr(0, 200);
    }
    EXPECT_NE(0, allowed[std::string("vprintf by ") + kStreamBuffer]);
    report("vectors", rows.size(), allowed);
}

TEST(Allocation, NoneForLongValues)
{
    Counts allowed;
    Caller caller;
    std::size_t calls = 0;
    for (const char* part : {"a", "0", ",", "1,", "\xff"}) {
        const std::string text = repeated(part, kMegabyte);
        for (const Function& function : catalogue::functions()) {
            for (std::size_t i = 0; i < function.arguments.size(); ++i) {
                std::vector<Value> values = widest(function);
                if (!is_text(function.arguments[i])) continue;
                values[i] = text;
                if (never_returns(function, values)) continue;
                Counts forbidden;
                caller.load(function, values);
                count_requests(caller, allowed, forbidden);
                EXPECT_EQ(Counts(), forbidden) << function.name << " with " << part;
                ++calls;
            }
        }
    }
    report("values of 1 MiB", calls, allowed);
}

TEST(Allocation, TheChannelListNeedsAStreamAndItsBuffer)
{
    char path[] = "/tmp/ostrel-channels-XXXXXX";
    const int descriptor = mkstemp(path);
    ASSERT_LE(0, descriptor);
    close(descriptor);
    list_file = path;
    list_command = "echo 1 6 11 >" + list_file;
    Counts allowed;
    Counts forbidden;
    Caller caller;
    caller.load(*catalogue::find("WLAN_check_channel"), {std::string("6"), std::string("RADIO_2.4GHz")});
    count_requests(caller, allowed, forbidden);
    EXPECT_EQ(Counts(), forbidden);
    std::size_t opened = 0;
    for (const auto& [name, count] : allowed) opened += name.starts_with("fopen") ? count : 0;
    EXPECT_EQ(1, opened);
    EXPECT_EQ(1, allowed[std::string("fscanf by ") + kStreamBuffer]);
    report("WLAN_check_channel", 1, allowed);
}

}  // namespace

}  // namespace ostrel::tests
