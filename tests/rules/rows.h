// The rows in vectors/, read once and grouped by function.
#ifndef OSTREL_TESTS_RULES_ROWS_H
#define OSTREL_TESTS_RULES_ROWS_H

#include <functional>
#include <vector>

#include "vectors/rows.h"

namespace ostrel::tests {

using vectors::Row;

const std::vector<Row>& all_rows();

// rows_of returns the rows of a function that apply to every gateway.
using Rows = std::vector<std::reference_wrapper<const Row>>;
const Rows& rows_of(const catalogue::Function& function);

std::vector<const catalogue::Function*> all_functions();

}  // namespace ostrel::tests

#endif
