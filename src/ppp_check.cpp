#include <ostrel/ppp_check.h>
#include <ostrel/result_code.h>

#include <cstdlib>

#include "primitives/accounts.h"
#include "primitives/strings.h"
#include "support/char_set.h"
#include "support/report.h"
#include "support/text.h"

using namespace ostrel;

int PPP_check_connection_type(const char* value)
{
    if (equals(value, "IP_Routed")) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error wan connection type:%s\n\n", __func__, value);
}

int PPP_check_user_name(const char* value)
{
    int any_type = 0;
    const int code = validate_ppp_user_name(value, &any_type);
    if (code == OSTREL_VALID) return OSTREL_VALID;
    return refuse(code, "Error in %s: Error ppp user name:%s\n\n", __func__, value);
}

int PPP_check_tonline_password(const char* value)
{
    const int code = validate_string(1, 8, kLatin1Printable, value);
    if (code == OSTREL_VALID) return OSTREL_VALID;
    return refuse(code, "Error in %s: Error ppp T-Online password:%s\n\n", __func__, value);
}

int PPP_check_non_tonline_password(const char* value)
{
    const int code = validate_ppp_password(value);
    if (code == OSTREL_VALID) return OSTREL_VALID;
    return refuse(code, "Error in %s: Error none T-Online ppp password:%s\n\n", __func__, value);
}

int PPP_check_pppoe_service_name(const char* value)
{
    if (value[0] != '\0') return OSTREL_VALID;
    return refuse(OSTREL_EMPTY, "Error in %s: Error ppp service name:%s\n\n", __func__, value);
}

int PPP_check_connection_trigger(const char* value)
{
    if (equals(value, "OnDemand") || equals(value, "AlwaysOn")) return OSTREL_VALID;
    const int code = value[0] == '\0' ? OSTREL_EMPTY : OSTREL_INVALID_VALUE;
    return refuse(code, "Error in %s: Error connection trigger:%s\n\n", __func__, value);
}

int PPP_check_idle_disconnect_time(const char* value)
{
    if (value[0] != '\0') return OSTREL_VALID;
    return refuse(OSTREL_EMPTY, "Error in %s: Error disconnect time:%s\n\n", __func__, value);
}

int PPP_check_route_protocol_rx(const char* value)
{
    if (equals(value, "Off")) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error Rx route protocol:%s\n\n", __func__, value);
}

int PPP_check_shaping_rate(const char* value)
{
    if (std::atoi(value) >= -1) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error shaping rate:%s\n\n", __func__, value);
}

int PPP_check_shaping_burst_size(const char* value)
{
    if (std::atoi(value) >= 0) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error shaping burst size:%s\n\n", __func__, value);
}
