// Generates values on both sides of the limits that constraints describe.
#ifndef OSTREL_TESTS_RULES_CANDIDATES_H
#define OSTREL_TESTS_RULES_CANDIDATES_H

#include <set>
#include <string>
#include <vector>

#include "rules/constraints.h"

namespace ostrel::tests {

std::set<std::string> candidates(const rules::Form& form, const std::set<std::string>& known);

// numbers returns values of type int for a form.
std::vector<long long> numbers(const rules::Form& form);

}  // namespace ostrel::tests

#endif
