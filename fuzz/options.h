// Options of fuzz_replay.
#ifndef OSTREL_FUZZ_OPTIONS_H
#define OSTREL_FUZZ_OPTIONS_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace ostrel::fuzz {

struct ReplayOptions {
    std::size_t random = 0;
    std::size_t refusals = 0;
    std::uint64_t seed = 1;
    std::string check;
    std::filesystem::path with;
    std::filesystem::path table;
    std::uint64_t floor = 0;
    std::vector<std::filesystem::path> folders;
};

// read_options ends the program after --help and after an invalid option.
ReplayOptions read_options(int argc, char** argv);

}  // namespace ostrel::fuzz

#endif
