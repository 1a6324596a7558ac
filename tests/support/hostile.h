// Hostile values for one argument, and neutral values for the others.
#ifndef OSTREL_TESTS_SUPPORT_HOSTILE_H
#define OSTREL_TESTS_SUPPORT_HOSTILE_H

#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"
#include "catalogue/catalogue.h"

namespace ostrel::tests {

// repeated repeats the part until the result has at least that size.
std::string repeated(std::string_view part, std::size_t size);

// is_text returns whether a function reads a string from the argument. An argument of several blocks does not
// count.
bool is_text(const catalogue::Argument& argument);

// neutral returns a value for an argument while another one is hostile: an empty string, or the number.
catalogue::Value neutral(const catalogue::Argument& argument, long long number);

// widest returns a value for each argument. Strings are empty, and numbers are 0, except the last one, which
// is the largest int because it may be an upper limit.
std::vector<catalogue::Value> widest(const catalogue::Function& function);

// never_returns returns whether the call would never return; parameter_check_test covers such calls.
bool never_returns(const catalogue::Function& function, const std::vector<catalogue::Value>& values);

// is_listed returns whether the catalogue lists the code among the answers of the function.
bool is_listed(const catalogue::Function& function, int code);

}  // namespace ostrel::tests

#endif
