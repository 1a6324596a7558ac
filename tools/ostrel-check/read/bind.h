// Bind: converts a record to a call of a check.
#ifndef OSTREL_TOOLS_READ_BIND_H
#define OSTREL_TOOLS_READ_BIND_H

#include <span>
#include <vector>

#include "catalogue/catalogue.h"
#include "read/record.h"

namespace ostrel::tool {

// bind_check finds the check that the record names. Throws std::invalid_argument with a message for the user.
const catalogue::Function& bind_check(const Record& record);

// bind converts items to the arguments that the check takes. A text is read as a number if the argument is one, and
// several consecutive texts may be the texts of one argument. The arguments that are only written may be omitted, but
// only all together. It reuses the memory of values. Throws std::invalid_argument with a message for the user.
void bind(const catalogue::Function& function, std::span<const Item> items,
          std::vector<catalogue::Value>& values);

// without_spares returns the items of a record without the excess empty items at the end, which mean nothing to the
// check.
std::span<const Item> without_spares(const catalogue::Function& function, const Record& record);

}  // namespace ostrel::tool

#endif
