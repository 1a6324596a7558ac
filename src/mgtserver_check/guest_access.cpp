#include <ostrel/mgtserver_check.h>
#include <ostrel/result_code.h>

#include <cstdlib>

#include "primitives/strings.h"
#include "support/char_set.h"
#include "support/report.h"

using namespace ostrel;

int GUESTACCESS_check_max_allowed_number(const char* value)
{
    const int code = validate_string(1, 2, kDigits, value);
    if (code != OSTREL_VALID) inform("Error in %s: Error max allowed number:%s\n\n", __func__, value);
    if (std::atoi(value) > 0) return code;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error min allowed number:%s\n\n", __func__, value);
}

int GUESTACCESS_check_password(const char* value)
{
    const int code = validate_string(4, 32, kAlnum, value);
    if (code == OSTREL_VALID) return OSTREL_VALID;
    return refuse(code, "Error in %s: Error max allowed number:%s\n\n", __func__, value);
}
