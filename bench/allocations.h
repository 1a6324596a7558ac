// Counts what the program and every library in it take from the heap.
#ifndef OSTREL_BENCH_ALLOCATIONS_H
#define OSTREL_BENCH_ALLOCATIONS_H

#include <cstddef>

namespace ostrel::bench {

std::size_t allocations();

}  // namespace ostrel::bench

#endif
