// Hostile values for arguments, and values for the other arguments.
#ifndef OSTREL_TESTS_SUPPORT_HOSTILE_H
#define OSTREL_TESTS_SUPPORT_HOSTILE_H

#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"
#include "catalogue/catalogue.h"

namespace ostrel::tests {

// repeated returns the part repeated until the text has at least that size.
std::string repeated(std::string_view part, std::size_t size);

// is_text tells an argument that a text can be given for, which is not one of several blocks.
bool is_text(const catalogue::Argument& argument);

// neutral is what an argument holds while another one is hostile: texts are empty.
catalogue::Value neutral(const catalogue::Argument& argument, long long number);

// widest returns a value for each argument: texts are empty, a last number, which is an upper limit if
// anything, is as large as can be, and the others are 0.
std::vector<catalogue::Value> widest(const catalogue::Function& function);

// never_returns tells that the call would not come back, which parameter_check_test holds.
bool never_returns(const catalogue::Function& function, const std::vector<catalogue::Value>& values);

// is_listed tells whether the catalogue knows the code as an answer of the function.
bool is_listed(const catalogue::Function& function, int code);

}  // namespace ostrel::tests

#endif
