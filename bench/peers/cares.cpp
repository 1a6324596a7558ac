#include <ares.h>
#include <sys/socket.h>

#include "bench/contender.h"

namespace ostrel::bench {

void add_cares(Contenders& all)
{
    all.push_back(contender("ipv4", "c-ares", [](const char* v) {
        unsigned char address[4];
        return ares_inet_pton(AF_INET, v, address) == 1;
    }));
}

}  // namespace ostrel::bench
