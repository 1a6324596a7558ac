// The build options of the loaded library, in the form that the descriptions need.
#ifndef OSTREL_ORACLE_LIBRARY_H
#define OSTREL_ORACLE_LIBRARY_H

#include <vector>

#include "rules/build.h"
#include "rules/evaluate.h"

namespace ostrel::oracle {

// library_build returns the loaded library's build options. For a variant, the environment variables
// OSTREL_TEST_MODEL, OSTREL_TEST_ACCOUNT_REALM and OSTREL_TEST_SETUP_REALM contain them.
const rules::Build& library_build();

// builds_with_channels returns copies of it with different channel lists, each for a Driver with that list.
const std::vector<rules::Build>& builds_with_channels();

}  // namespace ostrel::oracle

#endif
