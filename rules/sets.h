// The sets that the descriptions use, written independently of the library.
#ifndef OSTREL_RULES_SETS_H
#define OSTREL_RULES_SETS_H

#include "rules/set.h"

namespace ostrel::rules {

inline constexpr Set kDigits = Set::range('0', '9');
inline constexpr Set kUpper = Set::range('A', 'Z');
inline constexpr Set kLower = Set::range('a', 'z');
inline constexpr Set kLetters = kUpper | kLower;
inline constexpr Set kAlnum = kLetters | kDigits;
inline constexpr Set kHex = kDigits | Set::range('A', 'F') | Set::range('a', 'f');
inline constexpr Set kPrintable = Set::range(' ', '~');
inline constexpr Set kLatin1 = kPrintable | Set::range(0xA1, 0xFF);
inline constexpr Set kBlank = Set(" ");

inline constexpr Set kAccountDigits = kDigits | Set("#");  // allowed before the realm of an account
inline constexpr Set kIpv4 = kDigits | Set(".");
inline constexpr Set kHostLabel = kAlnum | Set("-");
inline constexpr Set kUrl = kAlnum | Set("-_./:?");
inline constexpr Set kNameSet = kAlnum | Set("-._");
inline constexpr Set kMail = kAlnum | Set("-.@");
inline constexpr Set kHostPort = kAlnum | Set("-._:");
inline constexpr Set kRouterName = kAlnum | Set("!()*-/;?_");
inline constexpr Set kDeviceName = kAlnum | Set(" -");

}  // namespace ostrel::rules

#endif
