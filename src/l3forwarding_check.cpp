#include <ostrel/l3forwarding_check.h>
#include <ostrel/parameter_check.h>
#include <ostrel/result_code.h>

#include <cstdlib>
#include <cstring>

#include "support/report.h"
#include "support/text.h"

using namespace ostrel;

namespace {

constexpr std::size_t kLongestInterface = 256;
constexpr int kLeastMetric = -1;
constexpr int kLeastMtu = 1;
constexpr int kLargestMtu = 1540;

}  // namespace

int L3FORWARDING_check_interface(const char* value)
{
    if (value[0] != '\0' && std::strlen(value) <= kLongestInterface) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid interface value\n\n", __func__);
}

int L3FORWARDING_check_IP_address_and_mask(const char* value)
{
    if (!starts_with(value, "0.0") && PARAM_check_ip_addr(value) != OSTREL_INVALID_VALUE) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid destination IP address or subnet mask:%s\n",
                  __func__, value);
}

int L3FORWARDING_check_ForwardingType(const char* value)
{
    if (equals_ignoring_case(value, "Default") || equals_ignoring_case(value, "Network") ||
        equals_ignoring_case(value, "Host")) {
        return OSTREL_VALID;
    }
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid type:%s\n", __func__, value);
}

int L3FORWARDING_check_ForwardingMetric(const char* value)
{
    if (std::atoi(value) >= kLeastMetric) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid metric:%s, RANGE >=%d\n", __func__, value,
                  kLeastMetric);
}

int L3FORWARDING_check_MTU(const char* value)
{
    const int mtu = std::atoi(value);
    if (mtu >= kLeastMtu && mtu <= kLargestMtu) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid MTU:%s, RANGE[%d, %d]\n", __func__, value,
                  kLeastMtu, kLargestMtu);
}

int L3FORWARDING_check_forwarding_policy(const char* value)
{
    if (std::atoi(value) >= -1) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Invalid forwarding policy:%s, RANGE >= -1\n", __func__,
                  value);
}
