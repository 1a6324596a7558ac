// Runs each contender under callgrind, which dumps each benchmark as family/shape/contender/values.
//
//   valgrind --tool=callgrind --collect-atstart=no … instructions VALUES [FAMILY…]
#include <valgrind/callgrind.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

#include "bench/contender.h"

using namespace ostrel::bench;

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << "usage: instructions VALUES [FAMILY...]\n";
        return 2;
    }
    const std::size_t size = std::strtoul(argv[1], nullptr, 10);
    const Contenders all = contenders();
    for (const ValueFamily& family : families()) {
        if (argc > 2 && std::find(argv + 2, argv + argc, family.name) == argv + argc) continue;
        for (const Shape shape : kShapes) {
            const Corpus corpus(family, shape, size);
            for (const Contender& each : all) {
                if (each.family != family.name) continue;
                const std::string name = family.name + '/' + name_of(shape) + '/' + each.name + '/' + argv[1];
                each.pass(corpus);  // one-time work, such as binding symbols, is not counted
                CALLGRIND_TOGGLE_COLLECT;
                each.pass(corpus);
                CALLGRIND_TOGGLE_COLLECT;
                CALLGRIND_DUMP_STATS_AT(name.c_str());
            }
        }
    }
}
