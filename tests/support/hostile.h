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

// is_text returns whether a function reads one string from the argument, not several blocks.
bool is_text(const catalogue::Argument& argument);

// neutral returns a value for an argument while another one is hostile: an empty string, or the number.
catalogue::Value neutral(const catalogue::Argument& argument, long long number);

// widest returns empty strings and zeros. The last number is the largest int, as it may be an upper limit.
std::vector<catalogue::Value> widest(const catalogue::Function& function);

// never_returns returns whether the call would never return; parameter_check_test covers such calls.
bool never_returns(const catalogue::Function& function, const std::vector<catalogue::Value>& values);

bool is_listed(const catalogue::Function& function, int code);

}  // namespace ostrel::tests

#endif
