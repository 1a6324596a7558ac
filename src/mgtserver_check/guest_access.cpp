#include <ostrel/mgtserver_check/guest_access.h>
#include <ostrel/result_code.h>

#include "src/strings.h"
#include "src/support/char_set.h"
#include "src/support/number.h"
#include "src/support/report.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr Text kGuestNumber = text(1, 2, kDigits);
constexpr Text kGuestPassword = text(4, 32, kAlnum);

}  // namespace

int GUESTACCESS_check_max_allowed_number(const char* value)
{
    const int code = validate_string(value, kGuestNumber);
    if (code != OSTREL_VALID) inform("Error in %s: Error max allowed number:%s\n\n", __func__, value);
    if (leading_number(value) > 0) return code;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error min allowed number:%s\n\n", __func__, value);
}

int GUESTACCESS_check_password(const char* value)
{
    return text_or_refuse(value, kGuestPassword,
                          line("Error in %s: Error max allowed number:%s\n\n", __func__, value));
}
