// The first inputs, from which other inputs are made.
#ifndef OSTREL_FUZZ_SEEDS_H
#define OSTREL_FUZZ_SEEDS_H

#include <string>
#include <vector>

#include "fuzz/fuzzer.h"
#include "vectors/rows.h"

namespace ostrel::fuzz {

// seeds returns the calls of a function in vectors/, and variations of some of them. In a variation, one
// argument is replaced with NULL or a value from the description, such as a keyword, a limit or a number next
// to it, or a string with a required shape.
std::vector<std::string> seeds(const Fuzzer& fuzzer, const catalogue::Function& function,
                               const std::vector<vectors::Row>& rows);

}  // namespace ostrel::fuzz

#endif
