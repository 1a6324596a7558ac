// Bind: from a record to the call of a check.
#ifndef OSTREL_TOOLS_READ_BIND_H
#define OSTREL_TOOLS_READ_BIND_H

#include <span>
#include <vector>

#include "catalogue/catalogue.h"
#include "read/record.h"

namespace ostrel::tool {

// bind_check finds the check that the record names. Throws std::invalid_argument with a message for the user.
const catalogue::Function& bind_check(const Record& record);

// bind makes an argument of each item, by what the check takes: a text is also a number where a number is wanted,
// and several texts in a row are the texts of one argument. Arguments that are only written may be left out, all
// together. values keeps its memory. Throws std::invalid_argument with a message for the user.
void bind(const catalogue::Function& function, std::span<const Item> items,
          std::vector<catalogue::Value>& values);

// without_spares leaves out the items of a record that mean nothing to the check.
std::span<const Item> without_spares(const catalogue::Function& function, const Record& record);

}  // namespace ostrel::tool

#endif
