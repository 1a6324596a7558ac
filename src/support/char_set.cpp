#include "support/char_set.h"

#include <ostrel/character_sets.h>

namespace ostrel {

constexpr CharSet kDigits(CHARSET_DIGITS);
constexpr CharSet kAlnum(CHARSET_ALNUM);
constexpr CharSet kPppDigits(CHARSET_PPP_DIGITS);
constexpr CharSet kHexDigits(CHARSET_HEX);
constexpr CharSet kAsciiPrintable(CHARSET_ASCII_PRINTABLE);
constexpr CharSet kLatin1Printable(CHARSET_LATIN1_PRINTABLE);
constexpr CharSet kIpv4(CHARSET_IPV4);
constexpr CharSet kHost(CHARSET_HOST);
constexpr CharSet kUrl(CHARSET_URL);
constexpr CharSet kHostPort(CHARSET_HOSTPORT);
constexpr CharSet kName(CHARSET_NAME);
constexpr CharSet kMail(CHARSET_MAIL);
constexpr CharSet kDescription(CHARSET_DESCRIPTION);
constexpr CharSet kDeviceName(CHARSET_DEVICE_NAME);
constexpr CharSet kRouterName(CHARSET_ROUTER_NAME);
constexpr CharSet kCisName(CHARSET_CIS_NAME);

}  // namespace ostrel
