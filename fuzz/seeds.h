// Seeds: the first inputs, from which others are made.
#ifndef OSTREL_FUZZ_SEEDS_H
#define OSTREL_FUZZ_SEEDS_H

#include <string>
#include <vector>

#include "fuzz/fuzzer.h"
#include "vectors/rows.h"

namespace ostrel::fuzz {

// seeds returns the calls of a function in vectors/. In copies of some of them, one argument is replaced by a value
// that its description names: a keyword, a limit or its neighbour, a shape, or NULL.
std::vector<std::string> seeds(const Fuzzer& fuzzer, const catalogue::Function& function,
                               const std::vector<vectors::Row>& rows);

}  // namespace ostrel::fuzz

#endif
