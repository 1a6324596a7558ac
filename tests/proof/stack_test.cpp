// Measures how much stack the library needs. Each call runs on a separate stack that is painted with a
// pattern first. The deepest overwritten word marks the depth of the call.
//
// The figures cover the library's own frames: this program replaces the C library functions that have frames,
// and subtracts the depth of a function that does nothing.

#include <gtest/gtest.h>
#include <ucontext.h>

#include <algorithm>
#include <climits>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catalogue.h"
#include "rules/rules.h"
#include "tests/support/hostile.h"
#include "vectors/rows.h"

namespace {

bool measuring = false;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

}  // namespace

// During a measurement, nothing is printed, and every channel read from the list is 1.
extern "C" {

int vprintf(const char* format, std::va_list arg)
{
    return measuring ? 0 : std::vfprintf(stdout, format, arg);
}

int fprintf(std::FILE* stream, const char* format, ...)
{
    if (measuring) return 0;
    std::va_list arguments;
    va_start(arguments, format);
    const int result = std::vfprintf(stream, format, arguments);
    va_end(arguments);
    return result;
}

int puts(const char* s) { return measuring ? 0 : std::fputs(s, stdout) + std::fputc('\n', stdout); }

int putchar(int c) { return measuring ? 0 : std::fputc(c, stdout); }

int fflush(std::FILE* stream) { return measuring ? 0 : fflush_unlocked(stream); }

int system(const char* /*command*/) { return 0; }

std::FILE* fopen(const char* filename, const char* modes)
{
    return measuring ? stderr : fopen64(filename, modes);
}

int fscanf(std::FILE* /*stream*/, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    *va_arg(arguments, int*) = 1;
    va_end(arguments);
    return 1;
}

int fclose(std::FILE* /*stream*/) { return 0; }

int unlink(const char* /*name*/) noexcept { return 0; }

// The C library's strstr uses a table of 2 KiB. Its C++ overloads prevent a definition under that name.
const char* find_part(const char* text, const char* part) __asm__("strstr");
const char* find_part(const char* text, const char* part)
{
    const std::size_t size = std::strlen(part);
    for (;; ++text) {
        const int difference = std::strncmp(text, part, size);
        if (difference == 0) return text;
        if (*text == '\0') return nullptr;
    }
}

// As in a C library with a 64-bit long, atoi clamps the number to a long, which it then truncates to an int.
int atoi(const char* nptr) noexcept
{
    while (*nptr == ' ' || (*nptr >= '\t' && *nptr <= '\r')) ++nptr;
    const bool negative = *nptr == '-';
    if (*nptr == '-' || *nptr == '+') ++nptr;
    long number = 0;
    for (; *nptr >= '0' && *nptr <= '9'; ++nptr) {
        const int digit = *nptr - '0';
        if (__builtin_mul_overflow(number, 10, &number) || __builtin_sub_overflow(number, digit, &number)) {
            return static_cast<int>(negative ? LONG_MIN : LONG_MAX);
        }
    }
    return static_cast<int>(negative ? number : -number);
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
constexpr std::size_t kLimit = 2048;
constexpr std::size_t kStackSize = std::size_t{64} << 10;
constexpr std::uint64_t kPaint = 0xA5A5'5A5A'C3C3'3C3C;

int do_nothing(const char* /*value*/) { return 0; }

// of_text makes a function outside the catalogue, with one text argument and the description of isEmail.
template <int (*F)(const char*)>
Function of_text(const char* name)
{
    const rules::Check* const check = rules::find("isEmail");
    return {name,
            "",
            check->arguments,
            check,
            reinterpret_cast<const void*>(F),
            catalogue::detail::Signature<F>::invoke};
}

// PaintedStack is a stack between unreadable pages, on which calls are measured.
class PaintedStack {
 public:
    PaintedStack()
        : words_(reinterpret_cast<std::uint64_t*>(memory_.place(kStackSize, calling::Edge::kBegin)))
    {
        std::fill_n(words_, kWords, kPaint);
        zero_ = depth_of_nothing();
    }

    // depth returns the bytes of stack that the loaded call needs.
    std::size_t depth(Caller& caller) { return run(caller) - zero_; }

 private:
    static constexpr std::size_t kWords = kStackSize / sizeof(std::uint64_t);

    static void enter(unsigned high, unsigned low)
    {
        const auto address = static_cast<std::uintptr_t>(high) << 32 | low;
        reinterpret_cast<Caller*>(address)->call();  // NOLINT(performance-no-int-to-ptr)
    }

    std::size_t depth_of_nothing()
    {
        const Function nothing = of_text<do_nothing>("nothing");
        Caller caller;
        caller.load(nothing, {std::string()});
        return run(caller);
    }

    std::size_t run(Caller& caller)
    {
        ucontext_t host;
        ucontext_t guest;
        getcontext(&guest);
        guest.uc_stack.ss_sp = words_;
        guest.uc_stack.ss_size = kStackSize;
        guest.uc_link = &host;
        const auto address = reinterpret_cast<std::uintptr_t>(&caller);
        makecontext(&guest, reinterpret_cast<void (*)()>(&enter), 2, static_cast<unsigned>(address >> 32),
                    static_cast<unsigned>(address));
        measuring = true;
        swapcontext(&host, &guest);
        measuring = false;
        std::uint64_t* const end = words_ + kWords;
        std::uint64_t* const deepest =
            std::find_if(words_, end, [](std::uint64_t word) { return word != kPaint; });
        std::fill(deepest, end, kPaint);
        return static_cast<std::size_t>(end - deepest) * sizeof(std::uint64_t);
    }

    calling::GuardedMemory memory_;
    std::uint64_t* words_;
    std::size_t zero_ = 0;
};

class Stack : public testing::Test {
 protected:
    void measure(const Function& function, const std::vector<Value>& values)
    {
        if (never_returns(function, values)) return;
        caller_.load(function, values);
        std::size_t& deepest = deepest_[function.name];
        deepest = std::max(deepest, stack_.depth(caller_));
    }

    void measure_vectors()
    {
        for (const Row& row : read_cases()) measure(*row.given.function, row.given.values);
        measure(*catalogue::find("WLAN_check_channel"), {std::string("6"), std::string("RADIO_2.4GHz")});
    }

    // measure_long passes the string as each text argument, one at a time, and then as all of them.
    void measure_long(const std::string& text)
    {
        for (const Function& function : catalogue::functions()) {
            std::vector<Value> all = widest(function);
            for (std::size_t i = 0; i < all.size(); ++i) {
                if (!is_text(function.arguments[i])) continue;
                std::vector<Value> values = widest(function);
                all[i] = values[i] = text;
                measure(function, values);
            }
            measure(function, all);
        }
    }

    void write_table() const
    {
        const char* path = std::getenv("OSTREL_STACK_TABLE");  // NOLINT(concurrency-mt-unsafe)
        if (path == nullptr) return;
        std::ofstream table(path);
        for (const auto& [name, bytes] : deepest_) table << name << ' ' << bytes << '\n';
        EXPECT_TRUE(table.flush()) << path;
    }

    Caller caller_;
    PaintedStack stack_;
    std::map<std::string_view, std::size_t> deepest_;
};

// Without this test, the ones below could pass for the wrong reason.
int needs_a_thousand_bytes(const char* value)
{
    volatile char room[1000];
    for (volatile char& byte : room) byte = value[0];
    return room[0];
}

TEST_F(Stack, ADeepCallIsSeen)
{
    const Function deep = of_text<needs_a_thousand_bytes>("deep");
    measure(deep, {std::string("a")});
    EXPECT_LE(1000 - 128, deepest_["deep"]);
    EXPECT_GE(1100, deepest_["deep"]);
}

TEST_F(Stack, EveryFunctionStaysBelowTwoKibibytes)
{
    measure_vectors();
    for (const std::string_view part : {"a", "0", ",", "\xff", "&#65;", "1,", "192.168.1.1,"}) {
        measure_long(repeated(part, kMegabyte));
    }
    std::size_t highest = 0;
    std::string_view deepest_function;
    for (const Function& function : catalogue::functions()) {
        EXPECT_TRUE(deepest_.contains(function.name)) << function.name;
        EXPECT_GT(kLimit, deepest_[function.name]) << function.name;
        if (deepest_[function.name] < highest) continue;
        highest = deepest_[function.name];
        deepest_function = function.name;
    }
    std::printf("deepest: %zu bytes in %s\n", highest, std::string(deepest_function).c_str());
    write_table();
}

}  // namespace

}  // namespace ostrel::tests
