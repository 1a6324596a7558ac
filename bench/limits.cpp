#include <cstring>

#include "bench/contender.h"

namespace ostrel::bench {

namespace {

// read_each_byte is a separate function, like every rule.
[[gnu::noinline]] unsigned read_each_byte(const char* value)
{
    unsigned sum = 0;
    for (; *value != '\0'; ++value) sum += static_cast<unsigned char>(*value);
    return sum;
}

}  // namespace

void add_limits(Contenders& all)
{
    for (const ValueFamily& family : families()) {
        all.push_back(
            contender(family.name, "reading", [](const char* v) { return read_each_byte(v) != 0; }));
        all.push_back(contender(family.name, "strlen", [](const char* v) {
            std::size_t length = std::strlen(v);
            asm volatile("" : "+r"(length));  // otherwise, the compiler would read only the first byte
            return length != 0;
        }));
    }
}

}  // namespace ostrel::bench
