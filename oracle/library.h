// Library: the build of the library that is loaded, as descriptions are told of it.
#ifndef OSTREL_ORACLE_LIBRARY_H
#define OSTREL_ORACLE_LIBRARY_H

#include <vector>

#include "rules/build.h"
#include "rules/evaluate.h"

namespace ostrel::oracle {

// library_build is the build of the library that is loaded. For a variant, OSTREL_TEST_MODEL, OSTREL_TEST_ACCOUNT_REALM
// and OSTREL_TEST_SETUP_REALM in the environment say what it was built with.
const rules::Build& library_build();

// builds_with_channels is the library's build with one list of channels after the other, for a Driver that lists them.
const std::vector<rules::Build>& builds_with_channels();

}  // namespace ostrel::oracle

#endif
