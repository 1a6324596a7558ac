#include <ostrel/result_code.h>
#include <ostrel/wireless.h>
#include <ostrel/wlan_check/security_modes.h>

#include <cstring>

#include "src/strings.h"
#include "src/support/char_set.h"
#include "src/support/host.h"
#include "src/support/keywords.h"
#include "src/support/number.h"
#include "src/support/report.h"
#include "src/support/text.h"
#include "src/verdict.h"
#include "src/wlan_check/rules.h"

using namespace ostrel;

namespace {

constexpr auto kBasicEncryptionModes = keywords("WEPEncryption|None");
constexpr auto kBasicAuthenticationModes = keywords("None|EAPAuthentication");
constexpr auto kWpaEncryptionModes = keywords(
    "WEPEncryption|TKIPEncryption|WEPandTKIPEncryption|AESEncryption|WEPandAESEncryption|"
    "TKIPandAESEncryption|"
    "WEPandTKIPandAESEncryption");
constexpr auto kWpaAuthenticationModes = keywords("PSKAuthentication|EAPAuthentication");
constexpr auto k11iEncryptionModes0 =
    keywords("AESEncryption|WEPandAESEncryption|TKIPandAESEncryption|WEPandTKIPandAESEncryption");
constexpr auto k11iEncryptionModes1 = keywords("WEPEncryption|TKIPEncryption|WEPandTKIPEncryption");
constexpr auto k11iAuthenticationModes0 = keywords("EAPAuthentication|EAPandPSKAuthentication");
constexpr auto kServiceModes = keywords("none|LinkAuthentication|RadiusClient");
constexpr auto kWpa2Types = keywords("WPA2-PSK|WPA2-RADIUS");
constexpr auto kWepEncryptions = keywords("WEP-64|WEP-128");
constexpr auto kWpaTypes = keywords("WPA-PSK|WPA-RADIUS");
constexpr auto kWpaAutoTypes = keywords("WPA-AUTO-RADIUS|WPA-AUTO-PSK");

constexpr Limits kModeLength{0, 31};
constexpr std::size_t kLongestRadiusSecret = 80;
constexpr Text kRenewal = text(3, 4, kDigits);
constexpr int kShortestRenewal = 600;  // seconds
constexpr int kLongestRenewal = 7200;

// The 802.11i lists of the two read-write modes have no entry in common.
bool is_11i_encryption_mode(const char* value, int readwrite_mode)
{
    if (readwrite_mode == 0) {
        return is_one_of(value, k11iEncryptionModes0);
    }
    return is_one_of(value, k11iEncryptionModes1);
}

bool is_11i_authentication_mode(const char* value, int readwrite_mode)
{
    if (readwrite_mode == 0) {
        return is_one_of(value, k11iAuthenticationModes0);
    }
    return equals(value, "PSKAuthentication");
}

int require_encryption(bool suits) { return suits ? OSTREL_VALID : OSTREL_ENCRYPTION_MISMATCH; }

// check_11i_mode checks both kinds of IEEE 802.11i modes. Its lines contain "encryption modes" for both, as
// hosts expect.
int check_11i_mode(const char* value, int readwrite_mode, bool is_listed(const char*, int),
                   const char* function)
{
    const int code = length_or_refuse(
        value, kModeLength,
        line("Error in %s: Error IEEE11i encryption modes:%s length out of range. [0,31]\n\n", function,
             value),
        function);
    if (code != OSTREL_VALID) return code;
    if (readwrite_mode != 0 && readwrite_mode != 1) {
        return refuse(OSTREL_INVALID_VALUE,
                      "Error in %s: Error IEEE11i encryption modes:readwrite mode %d invalid \n\n", function,
                      readwrite_mode);
    }
    if (is_listed(value, readwrite_mode)) return OSTREL_VALID;
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error IEEE11i encryption modes:%s\n\n", function,
                  value);
}

}  // namespace

int WLAN_check_beacon_type(const char* value)
{
    return rule_or_refuse(TcmValidateBeaconType(value), value,
                          line("Error in %s: Error beacon type:%s\n\n", __func__, value));
}

int WLAN_check_basic_encryption_modes(const char* value)
{
    return keyword_or_refuse(value, kBasicEncryptionModes,
                             line("Error in %s: Error basic encryption modes:%s\n\n", __func__, value));
}

int WLAN_check_basic_authentication_modes(const char* value)
{
    return keyword_or_refuse(value, kBasicAuthenticationModes,
                             line("Error in %s: Error basic authentication modes:%s\n\n", __func__, value));
}

int WLAN_check_wpa_encryption_modes(const char* value)
{
    return keyword_or_refuse(value, kWpaEncryptionModes,
                             line("Error in %s: Error wpa encryption modes:%s\n\n", __func__, value));
}

int WLAN_check_wpa_authentication_modes(const char* value)
{
    return keyword_or_refuse(value, kWpaAuthenticationModes,
                             line("Error in %s: Error wpa authentication modes:%s\n\n", __func__, value));
}

int WLAN_check_IEEE11i_encryption_modes(const char* value, int readwrite_mode)
{
    return check_11i_mode(value, readwrite_mode, is_11i_encryption_mode, __func__);
}

int WLAN_check_IEEE11i_authentication_modes(const char* value, int readwrite_mode)
{
    return check_11i_mode(value, readwrite_mode, is_11i_authentication_mode, __func__);
}

int WLAN_check_authentication_service_mode(const char* value)
{
    const int code = length_or_refuse(
        value, kModeLength,
        line("Error in %s: Error authentication_service_mode:%s length out of range. [0,31]\n\n", __func__,
             value));
    if (code != OSTREL_VALID) return code;
    return keyword_or_refuse(
        value, kServiceModes,
        line("Error in %s: Error authentication_service_mode value invalid :%s\n\n", __func__, value));
}

int WLAN_check_HNAP_SecurityType(const char* setting1, const char* setting2, const char* type,
                                 const char* encryption)
{
    const bool is_wpa2 = is_one_of(type, kWpa2Types);
    if (host_equals(setting1, "0") && host_equals(setting2, "auto") && !is_wpa2) {
        return OSTREL_SECURITY_TYPE_NOT_ALLOWED;
    }
    if (is_wpa2) return require_encryption(equals(encryption, "AES"));
    if (is_wep_type(type)) {
        if (is_model_m2840() && equals(type, "WEP-RADIUS")) return OSTREL_SECURITY_TYPE_NOT_ALLOWED;
        return require_encryption(is_one_of(encryption, kWepEncryptions));
    }
    if (is_one_of(type, kWpaTypes)) return require_encryption(equals(encryption, "TKIP"));
    if (is_one_of(type, kWpaAutoTypes)) {
        return require_encryption(equals(encryption, "TKIPORAES"));
    }
    return OSTREL_SECURITY_TYPE_NOT_ALLOWED;
}

int WLAN_check_HNAP_KeyRenewal(const char* renewal, const char* interval, const char* type)
{
    if (equals(renewal, "false") || is_wep_type(type)) return OSTREL_VALID;
    if (validate_string(interval, kRenewal) != OSTREL_VALID) return OSTREL_INVALID;
    const int seconds = leading_number(interval);
    return seconds >= kShortestRenewal && seconds <= kLongestRenewal ? OSTREL_VALID : OSTREL_INVALID;
}

int WLAN_check_radius_sec(const char* value)
{
    const std::size_t length = std::strlen(value);
    return length >= 1 && length <= kLongestRadiusSecret ? OSTREL_VALID : OSTREL_INVALID;
}
