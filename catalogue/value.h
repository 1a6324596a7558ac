// Value: what is passed for one argument.
#ifndef OSTREL_CATALOGUE_VALUE_H
#define OSTREL_CATALOGUE_VALUE_H

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace ostrel::catalogue {

// Value is NULL, a text, a number, or the texts of several blocks.
using Value = std::variant<std::nullptr_t, std::string, long long, std::vector<std::string>>;

}  // namespace ostrel::catalogue

#endif
