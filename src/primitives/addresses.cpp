#include "primitives/addresses.h"

#include <ostrel/addresses.h>
#include <ostrel/result_code.h>

#include <cstdio>
#include <cstring>

#include "support/char_set.h"

namespace ostrel {

namespace {

constexpr std::size_t kMacAddressLength = 17;  // six octets of two digits and five separators

// is_group_digit tells whether the second hexadecimal digit of an address carries the group bit. The codes of
// 'A' and 'a' are odd where the digits' values are even.
bool is_group_digit(char digit) { return (digit >= 'A' ? digit - 'A' : digit - '0') % 2 != 0; }

bool judge_mac_address(const char* value, bool station_only)
{
    if (value == nullptr || std::strlen(value) != kMacAddressLength) return false;
    for (std::size_t i = 0; i < kMacAddressLength; ++i) {
        if (i % 3 == 2) {
            if (value[i] == ':') continue;
            std::putchar(static_cast<unsigned char>(value[i]));
            return false;
        }
        if (!kHexDigits.contains(value[i])) return false;
        if (i == 1 && station_only && is_group_digit(value[i])) {
            std::puts("Broadcasting MAC address, invalid.");
            return false;
        }
    }
    return true;
}

}  // namespace

bool is_ipv4_address(std::string_view text)
{
    if (text.size() < 7 || text.size() > 15) return false;
    constexpr int kNoDigits = -1;
    int octet = kNoDigits;
    int dots = 0;
    for (const char c : text) {
        if (c == '.') {
            if (octet == kNoDigits) return false;
            octet = kNoDigits;
            ++dots;
        } else if (c >= '0' && c <= '9') {
            octet = (octet == kNoDigits ? 0 : octet * 10) + (c - '0');
            if (octet > 255) return false;
        } else {
            return false;
        }
    }
    return octet != kNoDigits && dots == 3;
}

bool is_mac_address(const char* value) { return judge_mac_address(value, false); }

bool is_station_address(const char* value) { return judge_mac_address(value, true); }

}  // namespace ostrel

using namespace ostrel;

int TcmValidateIPAddress(const char* value) { return is_ipv4_address(value) ? OSTREL_VALID : OSTREL_INVALID; }

int TcmValidateMACaddress(const char* value) { return is_mac_address(value) ? OSTREL_VALID : OSTREL_INVALID; }

int isValidOrdinaryMACAddress(const char* value)
{
    return is_station_address(value) ? OSTREL_VALID : OSTREL_INVALID;
}
