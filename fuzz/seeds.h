// Seeds: the inputs that others are made of.
#ifndef OSTREL_FUZZ_SEEDS_H
#define OSTREL_FUZZ_SEEDS_H

#include <string>
#include <vector>

#include "fuzz/judge.h"
#include "vectors/rows.h"

namespace ostrel::fuzz {

// seeds gives the calls of a function in vectors/, and some of them with what its description names in place of one
// argument: keywords, limits and their neighbours, shapes, NULL.
std::vector<std::string> seeds(const Judge& judge, const catalogue::Function& function,
                               const std::vector<vectors::Row>& rows);

}  // namespace ostrel::fuzz

#endif
