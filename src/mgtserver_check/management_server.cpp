#include <ostrel/mgtserver_check.h>
#include <ostrel/result_code.h>

#include <cstdlib>
#include <cstring>

#include "primitives/date_time.h"
#include "primitives/hosts.h"
#include "support/assertion.h"
#include "support/report.h"

using namespace ostrel;

namespace {

constexpr char kModule[] = "mgtserver_check";

constexpr std::size_t kLongestPassword = 256;

}  // namespace

// The line numbers of the assertions are contract, wherever the lines stand now.

int MGTSERVER_check_server_url(const char* value_p)
{
    require_value(value_p, kModule, 41);
    if (is_server_url(value_p)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error server url:%s\n\n", __func__, value_p);
}

int MGTSERVER_check_firmware_url(const char* value_p)
{
    require_value(value_p, kModule, 75);
    if (is_firmware_url(value_p)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error server url:%s\n\n", __func__, value_p);
}

int MGTSERVER_check_server_password(const char* value_p)
{
    require_value(value_p, kModule, 105);
    if (std::strlen(value_p) <= kLongestPassword) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error password:%s\n\n", __func__, value_p);
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
    require_value(value_p, kModule, 210);
    if (is_date_time(value_p)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error periodic inform time:%s\n\n", __func__, value_p);
}

int MGTSERVER_check_periodic_inform_interval(const char* value_p)
{
    require_value(value_p, kModule, 240);
    if (std::atoi(value_p) > 0) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalite periodic inform interval\n\n", __func__);
}
