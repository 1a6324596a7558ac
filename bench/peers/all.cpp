#include "bench/contender.h"

namespace ostrel::bench {

Contenders contenders()
{
    Contenders all;
    add_ours(all);
    add_limits(all);
    add_libc(all);
    add_pcre2(all);
    add_re2(all);
    add_posix(all);
    add_libyang(all);
    add_urls(all);
    add_cares(all);
    return all;
}

}  // namespace ostrel::bench
