// A table of how often each step took effect and each condition was true.
#ifndef OSTREL_ORACLE_COUNTS_H
#define OSTREL_ORACLE_COUNTS_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "rules/evaluate.h"

namespace ostrel::oracle {

// StepCount is the number of times that a step took effect or a condition was true.
struct StepCount {
    std::string what;  // "LAN_check_ip_router step 0 refuse 402"
    std::uint64_t times = 0;
};

// table lists the steps and conditions of all checks, except "always" conditions.
std::vector<StepCount> table(const rules::Counts& counts);

// add_table adds the counts of an earlier run from a file, so that runs with several libraries result in one
// table. It throws std::runtime_error if the file does not match these descriptions.
void add_table(const std::filesystem::path& file, std::vector<StepCount>& rows);

// write_table writes the rows sorted by count. It throws std::runtime_error if it cannot write the file.
void write_table(const std::filesystem::path& file, std::vector<StepCount> rows);

}  // namespace ostrel::oracle

#endif
