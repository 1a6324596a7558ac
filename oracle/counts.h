// Counts: how often each step acted and each condition held, as a table.
#ifndef OSTREL_ORACLE_COUNTS_H
#define OSTREL_ORACLE_COUNTS_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "rules/evaluate.h"

namespace ostrel::oracle {

// Counted is a step or a condition, and how often it acted or held.
struct Counted {
    std::string what;  // "LAN_check_ip_router step 0 refuse 402"
    std::uint64_t times = 0;
};

// table lists the steps and conditions of all checks. A condition that always holds is none.
std::vector<Counted> table(const rules::Counts& counts);

// add_table adds what an earlier run wrote into a file: so the runs with several libraries make one table. Throws
// std::runtime_error where that is not of these descriptions.
void add_table(const std::filesystem::path& file, std::vector<Counted>& rows);

// write_table writes the rows, the least often met first. Throws std::runtime_error where it cannot.
void write_table(const std::filesystem::path& file, std::vector<Counted> rows);

}  // namespace ostrel::oracle

#endif
