#include "primitives/wireless.h"

#include <ostrel/result_code.h>
#include <ostrel/wireless.h>

#include <cstdint>

#include "primitives/strings.h"
#include "support/char_set.h"
#include "support/report.h"
#include "support/text.h"

namespace ostrel {

namespace {

constexpr std::size_t kPreSharedKeyLength = 64;
constexpr std::size_t kLongestSsid = 32;

// Packed is a text of up to three bytes as one number. Longer texts give numbers that no shorter one gives,
// because the last four bytes are in them.
using Packed = std::uint32_t;

constexpr Packed append(Packed packed, char c) { return packed << 8 | static_cast<unsigned char>(c); }

constexpr Packed pack(std::string_view text)
{
    Packed packed = 0;
    for (const char c : text) packed = append(packed, c);
    return packed;
}

constexpr Packed kRate1 = pack("1");
constexpr Packed kRate2 = pack("2");
constexpr Packed kRate5_5 = pack("5.5");
constexpr Packed kRate6 = pack("6");
constexpr Packed kRate9 = pack("9");
constexpr Packed kRate11 = pack("11");
constexpr Packed kRate12 = pack("12");
constexpr Packed kRate18 = pack("18");
constexpr Packed kRate24 = pack("24");
constexpr Packed kRate36 = pack("36");
constexpr Packed kRate48 = pack("48");
constexpr Packed kRate54 = pack("54");

// is_rate joins all comparisons into one answer, because which of them will hold cannot be guessed: with branches
// a list takes a third more time, and four times as much with texts.
inline bool is_rate(Packed text)
{
    return (text == kRate1) | (text == kRate2) | (text == kRate5_5) | (text == kRate6) | (text == kRate9) |
           (text == kRate11) | (text == kRate12) | (text == kRate18) | (text == kRate24) | (text == kRate36) |
           (text == kRate48) | (text == kRate54);
}

}  // namespace

int validate_pre_shared_key(std::string_view key)
{
    if (key.size() != kPreSharedKeyLength) return OSTREL_WRONG_FORM;
    return contains_all(kHexDigits, key) ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
}

int validate_pass_phrase(std::string_view phrase) { return validate_string(8, 63, kAsciiPrintable, phrase); }

bool is_rate_or_auto(std::string_view text) { return equals(text, "Auto") || is_rate(pack(text)); }

bool is_beacon_type(const char* value)
{
    return equals(value, "None") || equals(value, "Basic") || equals(value, "WPA") || equals(value, "11i") ||
           equals(value, "WPAand11i");
}

int validate_ssid(std::string_view ssid)
{
    inform("Info in %s: The lenght of SSID is %d\n\n", "TcmValidateSSID", static_cast<int>(ssid.size()));
    if (ssid.size() > kLongestSsid) return OSTREL_TOO_LONG;
    if (!contains_all(kAsciiPrintable, ssid)) return OSTREL_FORBIDDEN_CHARACTER;
    return ssid.empty() ? OSTREL_TOO_SHORT : OSTREL_VALID;
}

bool is_rate_set(std::string_view text)
{
    if (equals(text, "all") || equals(text, "default")) return true;
    // An empty item is no rate, which refuses the empty value and a comma that leads, ends or follows
    // another.
    Packed item = 0;
    for (const char c : text) {
        if (c != ',') {
            item = append(item, c);
            continue;
        }
        if (!is_rate(item)) return false;
        item = 0;
    }
    return is_rate(item);
}

}  // namespace ostrel

using namespace ostrel;

int TcmValueisValid(const char* value, const char* allowed)
{
    return contains_all(OwnSet(allowed), value) ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
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
