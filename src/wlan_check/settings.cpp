#include <ostrel/result_code.h>
#include <ostrel/wireless.h>
#include <ostrel/wlan_check/settings.h>

#include <climits>
#include <cstring>

#include "src/support/char_set.h"
#include "src/support/host.h"
#include "src/support/keywords.h"
#include "src/support/report.h"
#include "src/verdict.h"

using namespace ostrel;

namespace {

constexpr auto kAccessPointModes = keywords("InfrastructureAccessPoint");
constexpr auto kOtherModes = keywords("WirelessBridge|WirelessRepeater|WirelessStation");
constexpr auto kOperationalRateSets = keywords("|1,2,5.5,6,9,11,12,18,24,36,48,54");

constexpr Limits kModeLength{0, 31};
constexpr Limits kDistances{INT_MIN, -1, OSTREL_INVALID_DISTANCE};
constexpr int kLongestDescription = 4096;
constexpr int kLongestDomain = 3;

// is_environment accepts the letters for outdoor and indoor use.
bool is_environment(char c) { return c == 'O' || c == 'I' || c == 'o' || c == 'i'; }

// A missing character is read as the terminator, which no set contains.
bool is_regulatory_domain(const char* value)
{
    return contains(kDigits, value[0]) && contains(kDigits, value[1]) && is_environment(value[2]);
}

bool is_operation_mode(const char* value, int readwrite_mode)
{
    if (readwrite_mode == 1) return is_one_of(value, kAccessPointModes);
    return is_one_of(value, kOtherModes);
}

}  // namespace

int WLAN_check_ssid(char* value)
{
    resolve_references(value);
    return rule_or_refuse(TcmValidateSSID(value), value,
                          line("Error in %s: Error SSID:%s\n", __func__, value));
}

int WLAN_check_max_bit_rate(const char* value)
{
    return rule_or_refuse(TcmValidateRate(value), value,
                          line("Error in %s: Error max bit rate:%s\n\n", __func__, value));
}

int WLAN_check_basic_data_transmit_rate(const char* value)
{
    return rule_or_refuse(TcmValidateDataTransmitRates(value), value,
                          line("Error in %s: Error basic data transmit rate:%s\n\n", __func__, value));
}

int WLAN_check_op_data_transmit_rate(const char* value)
{
    return keyword_or_refuse(value, kOperationalRateSets,
                             line("Error in %s: Error operation data transmit rate:%s\n\n", __func__, value));
}

int WLAN_check_location_description(const char* value)
{
    if (std::strlen(value) <= kLongestDescription) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE,
                  "Error in %s: Error location description :%s length out of range. [0,%d]\n\n", __func__,
                  value, kLongestDescription);
}

int WLAN_check_regulatory_domain(const char* value)
{
    if (std::strlen(value) > kLongestDomain) {
        return refuse(OSTREL_INVALID_VALUE,
                      "Error in %s: Error regulatory domain :%s length out of range. [0,%d]\n\n", __func__,
                      value, kLongestDomain);
    }
    if (is_regulatory_domain(value)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error regulatory domain value invalid :%s\n\n",
                  __func__, value);
}

int WLAN_check_device_opration_mode(const char* value, int readwrite_mode)
{
    const int code = length_or_refuse(
        value, kModeLength,
        line("Error in %s: Error operating mode:%s length out of range. [0,31]\n\n", __func__, value));
    if (code != OSTREL_VALID) return code;
    if (readwrite_mode != 0 && readwrite_mode != 1) {
        return refuse(OSTREL_INVALID_VALUE,
                      "Error in %s: Error operating mode:readwrite mode %d invalid \n\n", __func__,
                      readwrite_mode);
    }
    if (is_operation_mode(value, readwrite_mode)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error operating mode:%s\n\n", __func__, value);
}

int WLAN_check_DistanceFromRoot(const char* value)
{
    return number_or_refuse(value, kDistances,
                            line("Error in %s: Error DistanceFromRoot:%s\n\n", __func__, value));
}
