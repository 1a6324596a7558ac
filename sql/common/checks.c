#include "sql/common/checks.h"

#include <ostrel/check.h>

/* Made by sql/generate.py, in the order of the bytes of the names. */
#include "sql/common/checks.inc"

const size_t ostrel_check_count = sizeof ostrel_checks / sizeof ostrel_checks[0];
