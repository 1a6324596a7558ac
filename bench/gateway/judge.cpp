// judge FAMILY CONTENDER PASSES judges a family's values the given number of times. The difference between
// two runs is the cost of the second run's additional passes.
#include <cstdlib>

#include "bench/contender.h"

using namespace ostrel::bench;

int main(int argc, char** argv)
{
    if (argc != 4) return 2;
    const Corpus corpus(family(argv[1]), Shape::kValid, 256);
    for (const Contender& each : contenders()) {
        if (each.family != argv[1] || each.name != argv[2]) continue;
        for (int passes = std::atoi(argv[3]); passes > 0; --passes) {
            if (each.pass(corpus) != corpus.values().size()) return 1;
        }
    }
}
