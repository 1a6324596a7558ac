#include <ostrel/branding_check.h>
#include <ostrel/result_code.h>

#include <cstring>

#include "src/support/char_set.h"
#include "src/support/keywords.h"
#include "src/support/report.h"

using namespace ostrel;

namespace {

constexpr auto kBooleans = keywords("0|1");

int check_length(const char* value, int limit, const char* function)
{
    if (std::strlen(value) < static_cast<std::size_t>(limit)) return OSTREL_VALID;
    return refuse(OSTREL_TOO_LONG, "Error in %s: The length of string :%s shoud not be less than %d\n",
                  function, value, limit);
}

constexpr int kColorLength = 6;

}  // namespace

int Param_check_ispname_value(const char* value) { return check_length(value, 32, __func__); }

int Param_check_helpdesk_value(const char* value) { return check_length(value, 64, __func__); }

int Param_check_page_value(const char* value) { return check_length(value, 256, __func__); }

int Param_check_logo_value(const char* value) { return check_length(value, 5460, __func__); }

int Param_check_logo_size_value(const char* value) { return check_length(value, 4096, __func__); }

int Param_check_server_value(const char* value) { return check_length(value, 256, __func__); }

int Param_check_login_value(const char* value) { return check_length(value, 40, __func__); }

int Param_check_pword_value(const char* value) { return check_length(value, 30, __func__); }

int Param_check_color_value(const char* value)
{
    if (std::strlen(value) != kColorLength) {
        return refuse(OSTREL_OUT_OF_RANGE, "Error in %s: The length of color :%s shoud not be equal to %d\n",
                      __func__, value, kColorLength);
    }
    for (const char* c = value; *c != '\0'; ++c) {
        if (contains(kHexDigits, *c)) continue;
        return refuse(OSTREL_WRONG_FORM, "Error in %s: color :%s contain invalid char %c\n", __func__, value,
                      *c);
    }
    return OSTREL_VALID;
}

int Param_check_bool_value(const char* value)
{
    if (is_one_of(value, kBooleans)) return OSTREL_VALID;
    return refuse(OSTREL_OUT_OF_RANGE, "Error in %s: bool value :%s out of range\n", __func__, value);
}

int Param_check_datetime_value(const char*) { return OSTREL_VALID; }
