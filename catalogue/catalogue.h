// The catalogue of all exported functions.
#ifndef OSTREL_CATALOGUE_CATALOGUE_H
#define OSTREL_CATALOGUE_CATALOGUE_H

#include <string_view>
#include <vector>

#include "catalogue/function.h"

namespace ostrel::catalogue {

// functions returns every exported function, grouped by family. It throws std::logic_error if a description
// does not match its declaration.
const std::vector<Function>& functions();

// families returns the families, in the same order as their functions.
std::vector<std::string_view> families();

// find returns the function with the given name, or NULL if there is none.
const Function* find(std::string_view name);

}  // namespace ostrel::catalogue

#endif
