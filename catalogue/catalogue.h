// The catalogue: every exported function.
#ifndef OSTREL_CATALOGUE_CATALOGUE_H
#define OSTREL_CATALOGUE_CATALOGUE_H

#include <string_view>
#include <vector>

#include "catalogue/function.h"

namespace ostrel::catalogue {

// functions lists every exported function, by family. Throws std::logic_error if a description does not match its
// declaration.
const std::vector<Function>& functions();

// families lists the families, in the order of their functions.
std::vector<std::string_view> families();

// find returns the function of that name, or NULL.
const Function* find(std::string_view name);

}  // namespace ostrel::catalogue

#endif
