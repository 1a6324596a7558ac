// Rows: those of vectors/, by function.
#ifndef OSTREL_TESTS_RULES_ROWS_H
#define OSTREL_TESTS_RULES_ROWS_H

#include <vector>

#include "tests/support/vectors.h"

namespace ostrel::tests {

// rows_of gives the rows of a function that hold on every gateway.
const std::vector<Row>& rows_of(const catalogue::Function& function);

std::vector<const catalogue::Function*> all_functions();

}  // namespace ostrel::tests

#endif
