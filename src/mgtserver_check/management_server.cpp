#include <ostrel/date_time.h>
#include <ostrel/hosts.h>
#include <ostrel/mgtserver_check/management_server.h>
#include <ostrel/result_code.h>

#include <climits>

#include "src/support/assertion.h"
#include "src/support/report.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr char kModule[] = "mgtserver_check";

constexpr Limits kPasswordLength{0, 256};
constexpr Limits kIntervals{1, INT_MAX};

}  // namespace

// The line numbers of the assertions are part of the contract; they are not those of this file.

int MGTSERVER_check_server_url(const char* value_p)
{
    return rule_or_refuse(TcmValidateServerURL(require_value(value_p, kModule, 41)), value_p,
                          line("Error in %s: Error server url:%s\n\n", __func__, value_p));
}

int MGTSERVER_check_firmware_url(const char* value_p)
{
    if (TcmValidatefirmwareURL(require_value(value_p, kModule, 75)) == OSTREL_VALID) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error server url:%s\n\n", __func__, value_p);
}

int MGTSERVER_check_server_password(const char* value_p)
{
    return length_or_refuse(require_value(value_p, kModule, 105), kPasswordLength,
                            line("Error in %s: Error password:%s\n\n", __func__, value_p));
}

int MGTSERVER_check_conn_request_username(const char* value_p)
{
    return MGTSERVER_check_server_password(value_p);
}

int MGTSERVER_check_conn_request_password(const char* value_p)
{
    return MGTSERVER_check_server_password(value_p);
}

int MGTSERVER_check_periodic_inform(const char* value_p)
{
    require_value(value_p, kModule, 135);
    if (value_p[0] != '\0') return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error empty periodic inform\n\n", __func__);
}

int MGTSERVER_check_periodic_inform_time(const char* value_p)
{
    return rule_or_refuse(TcmValidateTime(require_value(value_p, kModule, 210)), value_p,
                          line("Error in %s: Error periodic inform time:%s\n\n", __func__, value_p));
}

int MGTSERVER_check_periodic_inform_interval(const char* value_p)
{
    return number_or_refuse(require_value(value_p, kModule, 240), kIntervals,
                            line("Error in %s: Invalite periodic inform interval\n\n", __func__));
}
