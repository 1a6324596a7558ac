// Seeds: the calls of vectors/ as inputs.
#ifndef OSTREL_FUZZ_SEEDS_H
#define OSTREL_FUZZ_SEEDS_H

#include <filesystem>
#include <string>
#include <vector>

#include "catalogue/case.h"

namespace ostrel::fuzz {

// read_vectors reads the calls of every file of a folder. Throws when one cannot be read.
std::vector<catalogue::Case> read_vectors(const std::filesystem::path& folder);

// read_file gives all bytes of a file. Throws when it cannot be read.
std::string read_file(const std::filesystem::path& file);

}  // namespace ostrel::fuzz

#endif
