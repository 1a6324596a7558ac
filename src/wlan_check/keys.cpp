#include <ostrel/parameter_check.h>
#include <ostrel/result_code.h>
#include <ostrel/wireless.h>
#include <ostrel/wlan_check/keys.h>

#include <cstdio>
#include <cstring>

#include "src/support/assertion.h"
#include "src/support/char_set.h"
#include "src/support/keywords.h"
#include "src/support/report.h"
#include "src/support/text.h"
#include "src/verdict.h"
#include "src/wlan_check/rules.h"

using namespace ostrel;

namespace {

constexpr auto kPassPhraseTypes = keywords("WPA-PSK|WPA-AUTO-PSK|WPA2-PSK");
constexpr auto kRadiusTypes = keywords("WPA-RADIUS|WPA-AUTO-RADIUS|WPA2-RADIUS");

constexpr unsigned kWepKeysLine = 500;  // the assertion prints this line number

constexpr std::size_t kWepKeys = 4;
constexpr Limits kKeyIndices{0, kWepKeys - 1};
constexpr std::size_t kWepKeyDistance = 257;  // from one key of the block to the next
constexpr std::size_t kWep64Length = 10;      // hexadecimal digits
constexpr std::size_t kWep128Length = 26;

bool is_pass_phrase_type(const char* type) { return is_one_of(type, kPassPhraseTypes); }

bool is_radius_type(const char* type) { return is_one_of(type, kRadiusTypes); }

int trace_code(int code)
{
    std::fprintf(stderr, "The code : %d\n", code);
    return code;
}

int check_wep_key(const char* key, const char* encryption)
{
    if (PARAM_check_printable_ascii_string(key) != OSTREL_VALID && !contains_all(kHexDigits, key)) {
        std::fprintf(stderr, "The key should not be empty or non printable ascii string: %s\n", key);
        std::fprintf(stderr, "The key should not contain non hexa char: %s\n", key);
        return OSTREL_FORBIDDEN_CHARACTER;
    }
    std::fprintf(stderr, "The key : %s\n", key);
    const std::size_t length = std::strlen(key);
    const bool suits = (equals(encryption, "WEP-64") && length == kWep64Length) ||
                       (equals(encryption, "WEP-128") && length == kWep128Length);
    return trace_code(suits ? OSTREL_VALID : OSTREL_ENCRYPTION_MISMATCH);
}

}  // namespace

int WLAN_check_preshared_key(const char* value)
{
    return rule_or_refuse(TcmValidatePSK(value), value,
                          line("Error in %s: Error key pass phrase:%s\n\n", __func__, value));
}

int WLAN_check_preshared_key2(const char* psk, const char* passphrase)
{
    if (psk[0] != '\0') {
        return rule_or_refuse(TcmValidatePSK(psk), psk,
                              line("Error in %s: Error PreSharedKey:%s\n\n", __func__, psk));
    }
    if (passphrase[0] != '\0') {
        // The empty key is judged instead of the pass phrase, so a pass phrase without a key is always
        // refused.
        return refuse(TcmValidateKPP(psk), "Error in %s: Error KeyPassphrase:%s\n\n", __func__, passphrase);
    }
    inform("Error in %s: Error PreSharedKey:%s\n\n", __func__, psk);
    return refuse(OSTREL_INVALID_VALUE, "Error in %s: Error KeyPassphrase:%s\n\n", __func__, passphrase);
}

int WLAN_check_wepkeys(char* keys)
{
    if (keys == nullptr) fail_assertion("value != ((void *)0)", "wlan_check", __func__, kWepKeysLine);
    std::size_t kept_length = 0;
    for (std::size_t i = 0; i < kWepKeys; ++i) {
        char* key = keys + i * kWepKeyDistance;
        if (PARAM_check_printable_ascii_string(key) != OSTREL_VALID) {
            inform("Error in %s: The key should not be empty or non printable ascii string: %s\n\n", __func__,
                   key);
            key[0] = '\0';
            continue;
        }
        if (!contains_all(kHexDigits, key)) {
            return refuse(OSTREL_FORBIDDEN_CHARACTER,
                          "Error in %s: The key should not contain non hexa char: %s\n\n", __func__, key);
        }
        const std::size_t length = std::strlen(key);
        // This never happens, because an empty key counts as not printable and has been skipped.
        if (length == 0) {  // GCOVR_EXCL_BR_LINE
            // GCOVR_EXCL_START
            inform("Error in %s: skip wepkeys[%d] for empty string\n", __func__, static_cast<int>(i));
            continue;
            // GCOVR_EXCL_STOP
        }
        if (length > kWep128Length) {
            return refuse(OSTREL_TOO_LONG, "Error in %s: The hexa key is too long: %s\n\n", __func__, key);
        }
        if (length < kWep64Length) {
            return refuse(OSTREL_TOO_SHORT, "Error in %s: The hexa key is too short: %s\n\n", __func__, key);
        }
        if (length != kWep64Length && length != kWep128Length) {
            return refuse(OSTREL_WEP_KEY_LENGTH,
                          "Error in %s: The hexa key length is less than %d and more than %d: %s\n\n",
                          __func__, static_cast<int>(kWep128Length), static_cast<int>(kWep64Length), key);
        }
        if (kept_length == 0) kept_length = length;
        if (length != kept_length) {
            return refuse(OSTREL_WEP_KEY_LENGTH,
                          "Error in %s: The previons valid key length is %d and now %d for: %s\n\n", __func__,
                          static_cast<int>(kept_length), static_cast<int>(length), key);
        }
    }
    return kept_length != 0 ? OSTREL_VALID : OSTREL_INVALID_VALUE;
}

int WLAN_check_keys(const char* key, const char* type, const char* encryption)
{
    if (is_pass_phrase_type(type)) {
        const bool is_key = TcmValidatePSK(key) == OSTREL_VALID || TcmValidateKPP(key) == OSTREL_VALID;
        return trace_code(is_key ? OSTREL_VALID : OSTREL_INVALID);
    }
    if (is_wep_type(type)) return check_wep_key(key, encryption);
    return trace_code(is_radius_type(type) ? OSTREL_VALID : OSTREL_INVALID);
}

int WLAN_check_default_wep_key_index(const char* value)
{
    return number_or_refuse(value, kKeyIndices,
                            line("Error in %s: Error default wep key index:%s\n\n", __func__, value));
}
