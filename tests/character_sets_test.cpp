// Tests the exact size of each character set, and every byte against every set.

#include <gtest/gtest.h>
#include <ostrel/character_sets.h>
#include <ostrel/strings.h>

#include <array>
#include <set>
#include <string>
#include <string_view>

#include "tests/support/byte_ranges.h"

namespace ostrel::tests {

namespace {

struct PublicSet {
    const char* name;
    const char* text;
    std::size_t bytes;
    std::size_t members;
    std::string_view ranges;
};

constexpr std::array<PublicSet, 17> kPublicSets = {{
    {"CHARSET_DIGITS", CHARSET_DIGITS, 10, 10, kDigitRanges},
    {"CHARSET_ALNUM", CHARSET_ALNUM, 62, 62, kAlnumRanges},
    {"CHARSET_PPP_DIGITS", CHARSET_PPP_DIGITS, 11, 11, "09##"},
    {"CHARSET_LATIN1_PRINTABLE", CHARSET_LATIN1_PRINTABLE, 190, 190, kLatin1Ranges},
    {"CHARSET_HEX", CHARSET_HEX, 22, 22, kHexRanges},
    {"CHARSET_ASCII_PRINTABLE", CHARSET_ASCII_PRINTABLE, 95, 95, kAsciiRanges},
    {"CHARSET_IPV4", CHARSET_IPV4, 11, 11, "09.."},
    {"CHARSET_HOST", CHARSET_HOST, 64, 63, "09AZaz--"},
    {"CHARSET_URL", CHARSET_URL, 69, 68, "09AZaz--__..//::??"},
    {"CHARSET_NAME", CHARSET_NAME, 65, 65, kNameRanges},
    {"CHARSET_MAIL", CHARSET_MAIL, 65, 65, kMailRanges},
    {"CHARSET_HOSTPORT", CHARSET_HOSTPORT, 66, 66, "09AZaz--..__::"},
    {"CHARSET_DESCRIPTION", CHARSET_DESCRIPTION, 95, 95, kAsciiRanges},
    {"CHARSET_DEVICE_NAME", CHARSET_DEVICE_NAME, 98, 95, kAsciiRanges},
    {"CHARSET_ROUTER_NAME", CHARSET_ROUTER_NAME, 71, 71, "!!()**--//09;;??AZ__az"},
    {"CHARSET_CIS_NAME", CHARSET_CIS_NAME, 64, 64, "  09AZ--az"},
    {"CHARSET_IDENT_LETTERS", CHARSET_IDENT_LETTERS, 53, 53, "AZ__az"},
}};

TEST(CharacterSets, EachTextHasExactlyItsBytesAndMembers)
{
    for (const PublicSet& set : kPublicSets) {
        const std::string_view text = set.text;
        EXPECT_EQ(set.bytes, text.size()) << set.name;
        EXPECT_EQ(set.members, std::set<char>(text.begin(), text.end()).size()) << set.name;
    }
}

TEST(CharacterSets, EveryByteThroughEveryText)
{
    for (const PublicSet& set : kPublicSets) {
        for (int byte = 0x01; byte <= 0xFF; ++byte) {
            const std::string value(1, static_cast<char>(byte));
            EXPECT_EQ(in_ranges(set.ranges, byte) ? 0 : 803, ValidateString(1, 1, set.text, value.c_str()))
                << set.name << " byte " << byte;
            EXPECT_EQ(in_ranges(set.ranges, byte) ? 0 : 803, ValidateNum(0, 9, set.text, value.c_str()))
                << set.name << " byte " << byte;
        }
        EXPECT_EQ(801, ValidateString(1, 1, set.text, "")) << "0x00 ends the value";
    }
}

TEST(CharacterSets, EveryByteAgainstEveryByte)
{
    for (int member = 0x01; member <= 0xFF; ++member) {
        const std::string set(1, static_cast<char>(member));
        for (int byte = 0x01; byte <= 0xFF; ++byte) {
            const std::string value(1, static_cast<char>(byte));
            ASSERT_EQ(member == byte ? 0 : 803, ValidateString(1, 1, set.c_str(), value.c_str()))
                << "set " << member << " byte " << byte;
            ASSERT_EQ(member == byte ? 1 : 0, countChar(value.c_str(), member)) << member << " in " << byte;
        }
    }
}

TEST(CharacterSets, TheListedTextsAreInCodeOrder)
{
    int expected = 0x20;
    for (const char c : std::string_view(CHARSET_LATIN1_PRINTABLE)) {
        EXPECT_EQ(expected, static_cast<unsigned char>(c));
        expected = expected == 0x7E ? 0xA1 : expected + 1;
    }
    EXPECT_EQ(0x100, expected);
    EXPECT_STREQ(CHARSET_ASCII_PRINTABLE, std::string(CHARSET_LATIN1_PRINTABLE).substr(0, 95).c_str());
}

TEST(CharacterSets, TheShuffledTextsBeginAndEndAsTheyMust)
{
    for (const std::string_view text : {CHARSET_DESCRIPTION, CHARSET_DEVICE_NAME}) {
        EXPECT_TRUE(text.starts_with(" \"|/\\+'")) << text;
        EXPECT_TRUE(text.ends_with("{}~-")) << text;
    }
    const std::string_view text = CHARSET_DEVICE_NAME;
    const std::multiset<char> repeated(text.begin(), text.end());
    for (const char c : {'@', '!', '%'}) EXPECT_EQ(2U, repeated.count(c)) << c;
}

}  // namespace

}  // namespace ostrel::tests
