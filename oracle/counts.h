// Counts: a table of how often each step acted and each condition held.
#ifndef OSTREL_ORACLE_COUNTS_H
#define OSTREL_ORACLE_COUNTS_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "rules/evaluate.h"

namespace ostrel::oracle {

// StepCount is how often a step acted or a condition held.
struct StepCount {
    std::string what;  // "LAN_check_ip_router step 0 refuse 402"
    std::uint64_t times = 0;
};

// table lists the steps and conditions of all checks, except conditions that always hold.
std::vector<StepCount> table(const rules::Counts& counts);

// add_table adds the counts of an earlier run from a file, so that runs with several libraries make one table. Throws
// std::runtime_error if the file does not match these descriptions.
void add_table(const std::filesystem::path& file, std::vector<StepCount>& rows);

// write_table writes the rows in the order of their counts. Throws std::runtime_error if it cannot.
void write_table(const std::filesystem::path& file, std::vector<StepCount> rows);

}  // namespace ostrel::oracle

#endif
