#include <ostrel/result_code.h>
#include <ostrel/wireless.h>

#include <cstdint>

#include "src/strings.h"
#include "src/support/judge.h"
#include "src/support/keywords.h"
#include "src/support/report.h"
#include "src/support/text.h"

using namespace ostrel;

namespace {

constexpr auto kBeaconTypes = keywords("None|Basic|WPA|11i|WPAand11i");
constexpr auto kNamedRateSets = keywords("all|default");

constexpr Text kPreSharedKey = text(64, 64, kHexDigits);
constexpr Text kSsid = text(1, 32, kAsciiPrintable);

// Packed is a string of up to three bytes, packed into one number. A longer string is reduced to its last
// four bytes, so it never equals a shorter one.
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

// is_rate combines all comparisons without branches, because which of them will succeed cannot be predicted.
// Checking a list takes a third longer with branches, and four times as long with string comparisons.
inline bool is_rate(Packed text)
{
    return (text == kRate1) | (text == kRate2) | (text == kRate5_5) | (text == kRate6) | (text == kRate9) |
           (text == kRate11) | (text == kRate12) | (text == kRate18) | (text == kRate24) | (text == kRate36) |
           (text == kRate48) | (text == kRate54);
}

}  // namespace

int TcmValueisValid(const char* value, const char* allowed)
{
    return contains_all(OwnSet(allowed), value) ? OSTREL_VALID : OSTREL_FORBIDDEN_CHARACTER;
}

int TcmValidatePSK(const char* key)
{
    const int code = validate_string(key, kPreSharedKey);
    return code == OSTREL_VALID || code == OSTREL_FORBIDDEN_CHARACTER ? code : OSTREL_WRONG_FORM;
}

int TcmValidateKPP(const char* value) { return validate_string(value, text(8, 63, kAsciiPrintable)); }

int TcmValidateRate(const char* value) { return judge(equals(value, "Auto") || is_rate(pack(value))); }

int TcmValidateBeaconType(const char* value) { return judge(is_one_of(value, kBeaconTypes)); }

int TcmValidateSSID(const char* ssid)
{
    inform("Info in %s: The lenght of SSID is %d\n\n", __func__, static_cast<int>(std::strlen(ssid)));
    return validate_string(ssid, kSsid);
}

int TcmValidateDataTransmitRates(const char* value)
{
    // An empty item is not a rate, so the empty value and leading, trailing and adjacent commas are refused.
    Packed item = 0;
    for (const char* c = value; *c != '\0'; ++c) {
        if (*c != ',') {
            item = append(item, *c);
            continue;
        }
        if (!is_rate(item)) return OSTREL_INVALID;
        item = 0;
    }
    return judge(is_rate(item) || is_one_of(value, kNamedRateSets));
}
