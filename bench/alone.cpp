#include "bench/contender.h"

namespace ostrel::bench {

Contenders contenders()
{
    Contenders all;
    add_ours(all);
    add_limits(all);
    return all;
}

}  // namespace ostrel::bench
