#include "support/char_set.h"

#include <ostrel/character_sets.h>

namespace ostrel {

namespace {

constexpr void add(Memberships& all, CharSet set, const char* members)
{
    for (; *members != '\0'; ++members) {
        std::uint16_t& word = all.words[static_cast<unsigned char>(*members)];
        word = static_cast<std::uint16_t>(word | static_cast<unsigned>(set));
    }
}

constexpr Memberships make_memberships()
{
    Memberships all;
    add(all, kDigits, CHARSET_DIGITS);
    add(all, kAlnum, CHARSET_ALNUM);
    add(all, kPppDigits, CHARSET_PPP_DIGITS);
    add(all, kHexDigits, CHARSET_HEX);
    add(all, kAsciiPrintable, CHARSET_ASCII_PRINTABLE);
    add(all, kLatin1Printable, CHARSET_LATIN1_PRINTABLE);
    add(all, kIpv4, CHARSET_IPV4);
    add(all, kHost, CHARSET_HOST);
    add(all, kUrl, CHARSET_URL);
    add(all, kHostPort, CHARSET_HOSTPORT);
    add(all, kName, CHARSET_NAME);
    add(all, kMail, CHARSET_MAIL);
    add(all, kDescription, CHARSET_DESCRIPTION);
    add(all, kDeviceName, CHARSET_DEVICE_NAME);
    add(all, kRouterName, CHARSET_ROUTER_NAME);
    add(all, kCisName, CHARSET_CIS_NAME);
    return all;
}

}  // namespace

constexpr Memberships kMemberships = make_memberships();

}  // namespace ostrel
