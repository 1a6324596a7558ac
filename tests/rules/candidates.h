// Candidates: values on both sides of the limits that constraints describe.
#ifndef OSTREL_TESTS_RULES_CANDIDATES_H
#define OSTREL_TESTS_RULES_CANDIDATES_H

#include <set>
#include <string>
#include <vector>

#include "rules/constraints.h"

namespace ostrel::tests {

// candidates returns texts for a form, derived from the form and from known texts.
std::set<std::string> candidates(const rules::Form& form, const std::set<std::string>& known);

// numbers returns ints for a form.
std::vector<long long> numbers(const rules::Form& form);

}  // namespace ostrel::tests

#endif
