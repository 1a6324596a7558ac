// Hostile values for arguments, and values for the other arguments.
#ifndef OSTREL_TESTS_SUPPORT_HOSTILE_H
#define OSTREL_TESTS_SUPPORT_HOSTILE_H

#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"
#include "catalogue/catalogue.h"

namespace ostrel::tests {

// repeated repeats the part until the text has at least that size.
std::string repeated(std::string_view part, std::size_t size);

// is_text returns whether the argument accepts a text; an argument of several blocks does not.
bool is_text(const catalogue::Argument& argument);

// neutral returns the value of an argument while another one is hostile: texts are empty.
catalogue::Value neutral(const catalogue::Argument& argument, long long number);

// widest returns a value for each argument: texts are empty, the last number, which may be an upper limit, is the
// largest int, and the others are 0.
std::vector<catalogue::Value> widest(const catalogue::Function& function);

// never_returns returns whether the call would never return; parameter_check_test covers such calls.
bool never_returns(const catalogue::Function& function, const std::vector<catalogue::Value>& values);

// is_listed returns whether the catalogue lists the code among the answers of the function.
bool is_listed(const catalogue::Function& function, int code);

}  // namespace ostrel::tests

#endif
