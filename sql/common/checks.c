#include "sql/common/checks.h"

#include <ostrel/check.h>

/* sql/generate.py generates this table and sorts it by name, in byte order. */
#include "sql/common/checks.inc"

const size_t ostrel_check_count = sizeof ostrel_checks / sizeof ostrel_checks[0];
