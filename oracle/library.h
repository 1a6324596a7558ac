// The build options of the loaded library, in the form that the descriptions need.
#ifndef OSTREL_ORACLE_LIBRARY_H
#define OSTREL_ORACLE_LIBRARY_H

#include <vector>

#include "rules/build.h"
#include "rules/evaluate.h"

namespace ostrel::oracle {

// library_build returns the build options of the loaded library. For a variant of the library, the
// environment variables OSTREL_TEST_MODEL, OSTREL_TEST_ACCOUNT_REALM and OSTREL_TEST_SETUP_REALM contain
// these options.
const rules::Build& library_build();

// builds_with_channels returns copies of that build with different channel lists, for use with a Driver that
// lists the same channels.
const std::vector<rules::Build>& builds_with_channels();

}  // namespace ostrel::oracle

#endif
