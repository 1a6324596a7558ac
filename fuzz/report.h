// Report tells of a call on which the library and its model differ.
#ifndef OSTREL_FUZZ_REPORT_H
#define OSTREL_FUZZ_REPORT_H

#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "fuzz/model/model.h"

namespace ostrel::fuzz {

// tell_difference gives three lines: the function's name, the row for vectors/ that the model would have, and
// the same row with what the library answered.
std::string tell_difference(const catalogue::Function& function, const std::vector<catalogue::Value>& values,
                            const model::Answer& expected, const model::Answer& actual);

}  // namespace ostrel::fuzz

#endif
