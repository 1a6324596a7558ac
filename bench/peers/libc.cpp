#include <arpa/inet.h>
#include <netinet/ether.h>
#include <ostrel/character_sets.h>

#include <cstdlib>
#include <cstring>
#include <ctime>

#include "bench/contender.h"

namespace ostrel::bench {

namespace {

bool strspn_accepts(const char* value, const char* set)
{
    const std::size_t length = std::strspn(value, set);
    return length != 0 && value[length] == '\0';
}

}  // namespace

void add_libc(Contenders& all)
{
    all.push_back(contender("ipv4", "inet_pton", [](const char* v) {
        in_addr address;
        return inet_pton(AF_INET, v, &address) == 1;
    }));
    all.push_back(contender("mac", "ether_aton_r", [](const char* v) {
        ether_addr address;
        return ether_aton_r(v, &address) != nullptr;
    }));
    all.push_back(contender("date_time", "strptime", [](const char* v) {
        tm fields = {};
        const char* end = strptime(v, "%Y-%m-%dT%H:%M:%S%z", &fields);
        return end != nullptr && *end == '\0';
    }));
    all.push_back(contender("number", "strtol", [](const char* v) {
        char* end = nullptr;
        const long number = std::strtol(v, &end, 10);
        return end != v && *end == '\0' && number >= 0 && number <= 999999;
    }));
    all.push_back(contender("printable", "strspn",
                            [](const char* v) { return strspn_accepts(v, CHARSET_ASCII_PRINTABLE); }));
    for (const char* family : {"password", "own_set_8", "own_set_16", "own_set_32", "own_set_64"}) {
        all.push_back(
            contender(family, "strspn", [](const char* v) { return strspn_accepts(v, CHARSET_ALNUM); }));
    }
    all.push_back(
        contender("own_digits_8", "strspn", [](const char* v) { return strspn_accepts(v, CHARSET_DIGITS); }));
}

}  // namespace ostrel::bench
