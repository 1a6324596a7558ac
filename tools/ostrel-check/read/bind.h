// Converts a record to the arguments of a check.
#ifndef OSTREL_TOOLS_READ_BIND_H
#define OSTREL_TOOLS_READ_BIND_H

#include <span>
#include <vector>

#include "catalogue/catalogue.h"
#include "read/record.h"

namespace ostrel::tool {

// bind_check finds the check that the record names. Throws std::invalid_argument with a message for the user.
const catalogue::Function& bind_check(const Record& record);

// bind reads a string as a number if the argument is a number, and may take several consecutive strings for
// an argument of several blocks. The output-only arguments must all be given or all be omitted. The memory of
// values is reused. Throws std::invalid_argument with a message for the user.
void bind(const catalogue::Function& function, std::span<const Item> items,
          std::vector<catalogue::Value>& values);

// without_spares returns a record's items without any superfluous empty ones at the end, which come from
// columns that the check does not need.
std::span<const Item> without_spares(const catalogue::Function& function, const Record& record);

}  // namespace ostrel::tool

#endif
