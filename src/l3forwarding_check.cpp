#include <ostrel/l3forwarding_check.h>
#include <ostrel/parameter_check.h>
#include <ostrel/result_code.h>

#include <climits>

#include "src/support/keywords.h"
#include "src/support/number.h"
#include "src/support/report.h"
#include "src/support/text.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr auto kForwardingTypes = keywords("default|network|host");

constexpr Limits kInterfaceLength{1, 256};
constexpr int kLeastMetric = -1;
constexpr Limits kPolicies{-1, INT_MAX};
constexpr int kLeastMtu = 1;
constexpr int kLargestMtu = 1540;

}  // namespace

int L3FORWARDING_check_interface(const char* value)
{
    return length_or_refuse(value, kInterfaceLength,
                            line("Error in %s: Invalid interface value\n\n", __func__));
}

int L3FORWARDING_check_IP_address_and_mask(const char* value)
{
    if (!starts_with(value, "0.0") && PARAM_check_ip_addr(value) != OSTREL_INVALID_VALUE) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid destination IP address or subnet mask:%s\n",
                  __func__, value);
}

int L3FORWARDING_check_ForwardingType(const char* value)
{
    if (is_one_of_ignoring_case(value, kForwardingTypes)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid type:%s\n", __func__, value);
}

int L3FORWARDING_check_ForwardingMetric(const char* value)
{
    if (leading_number(value) >= kLeastMetric) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid metric:%s, RANGE >=%d\n", __func__, value,
                  kLeastMetric);
}

int L3FORWARDING_check_MTU(const char* value)
{
    const int mtu = leading_number(value);
    if (mtu >= kLeastMtu && mtu <= kLargestMtu) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid MTU:%s, RANGE[%d, %d]\n", __func__, value,
                  kLeastMtu, kLargestMtu);
}

int L3FORWARDING_check_forwarding_policy(const char* value)
{
    return number_or_refuse(
        value, kPolicies, line("Error in %s: Invalid forwarding policy:%s, RANGE >= -1\n", __func__, value));
}
