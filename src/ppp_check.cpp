#include <ostrel/accounts.h>
#include <ostrel/ppp_check.h>
#include <ostrel/result_code.h>

#include <climits>

#include "src/accounts.h"
#include "src/strings.h"
#include "src/support/char_set.h"
#include "src/support/keywords.h"
#include "src/support/report.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr auto kConnectionTypes = keywords("IP_Routed");
constexpr auto kConnectionTriggers = keywords("OnDemand|AlwaysOn");
constexpr auto kReceiveProtocols = keywords("Off");

constexpr Text kTonlinePassword = text(1, 8, kLatin1Printable);

constexpr Limits kShapingRates{-1, INT_MAX};
constexpr Limits kBurstSizes{0, INT_MAX};

}  // namespace

int PPP_check_connection_type(const char* value)
{
    return keyword_or_refuse(value, kConnectionTypes,
                             line("Error in %s: Error wan connection type:%s\n\n", __func__, value));
}

int PPP_check_user_name(const char* value)
{
    int any_type = 0;
    return code_or_refuse(TcmValidatePPPUsername(value, &any_type), value,
                          line("Error in %s: Error ppp user name:%s\n\n", __func__, value));
}

int PPP_check_tonline_password(const char* value)
{
    return text_or_refuse(value, kTonlinePassword,
                          line("Error in %s: Error ppp T-Online password:%s\n\n", __func__, value));
}

int PPP_check_non_tonline_password(const char* value)
{
    return text_or_refuse(value, kPppPassword,
                          line("Error in %s: Error none T-Online ppp password:%s\n\n", __func__, value));
}

int PPP_check_pppoe_service_name(const char* value)
{
    if (value[0] != '\0') return OSTREL_VALID;
    return refuse(OSTREL_EMPTY, "Error in %s: Error ppp service name:%s\n\n", __func__, value);
}

int PPP_check_connection_trigger(const char* value)
{
    if (is_one_of(value, kConnectionTriggers)) return OSTREL_VALID;
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
    return keyword_or_refuse(value, kReceiveProtocols,
                             line("Error in %s: Error Rx route protocol:%s\n\n", __func__, value));
}

int PPP_check_shaping_rate(const char* value)
{
    return number_or_refuse(value, kShapingRates,
                            line("Error in %s: Error shaping rate:%s\n\n", __func__, value));
}

int PPP_check_shaping_burst_size(const char* value)
{
    return number_or_refuse(value, kBurstSizes,
                            line("Error in %s: Error shaping burst size:%s\n\n", __func__, value));
}
