#include "primitives/wireless.h"

#include <ostrel/result_code.h>
#include <ostrel/wireless.h>

#include "primitives/strings.h"
#include "support/char_set.h"
#include "support/report.h"
#include "support/text.h"

namespace ostrel {

namespace {

constexpr std::size_t kPreSharedKeyLength = 64;
constexpr std::size_t kLongestSsid = 32;

constexpr char kRates[][4] = {"1", "2", "5.5", "6", "9", "11", "12", "18", "24", "36", "48", "54"};

bool is_rate(std::string_view text)
{
    for (const auto& rate : kRates) {
        if (equals(text, rate)) return true;
    }
    return false;
}

}  // namespace

int validate_pre_shared_key(std::string_view key)
{
    if (key.size() != kPreSharedKeyLength) return OSTREL_WRONG_FORM;
    return kHexDigits.contains_all(key) ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
}

int validate_pass_phrase(std::string_view phrase) { return validate_string(8, 63, kAsciiPrintable, phrase); }

bool is_rate_or_auto(std::string_view text) { return equals(text, "Auto") || is_rate(text); }

bool is_beacon_type(const char* value)
{
    return equals(value, "None") || equals(value, "Basic") || equals(value, "WPA") || equals(value, "11i") ||
           equals(value, "WPAand11i");
}

int validate_ssid(std::string_view ssid)
{
    inform("Info in %s: The lenght of SSID is %d\n\n", "TcmValidateSSID", static_cast<int>(ssid.size()));
    if (ssid.size() > kLongestSsid) return OSTREL_TOO_LONG;
    if (!kAsciiPrintable.contains_all(ssid)) return OSTREL_FORBIDDEN_CHARACTER;
    return ssid.empty() ? OSTREL_TOO_SHORT : OSTREL_VALID;
}

bool is_rate_set(std::string_view text)
{
    if (equals(text, "all") || equals(text, "default")) return true;
    // An empty item is no rate, which refuses the empty value and a comma that leads, ends or follows
    // another.
    for (;;) {
        const std::string_view item = before(text, ',');
        if (!is_rate(item)) return false;
        if (item.size() == text.size()) return true;
        text.remove_prefix(item.size() + 1);
    }
}

}  // namespace ostrel

using namespace ostrel;

int TcmValueisValid(const char* value, const char* allowed)
{
    return CharSet(allowed).contains_all(value) ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
}

int TcmValidatePSK(const char* value) { return validate_pre_shared_key(value); }

int TcmValidateKPP(const char* value) { return validate_pass_phrase(value); }

int TcmValidateRate(const char* value) { return is_rate_or_auto(value) ? OSTREL_VALID : OSTREL_INVALID; }

int TcmValidateBeaconType(const char* value) { return is_beacon_type(value) ? OSTREL_VALID : OSTREL_INVALID; }

int TcmValidateSSID(const char* value) { return validate_ssid(value); }

int TcmValidateDataTransmitRates(const char* value)
{
    return is_rate_set(value) ? OSTREL_VALID : OSTREL_INVALID;
}
