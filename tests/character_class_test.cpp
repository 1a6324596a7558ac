// Compares each entry of the character-class table with the ranges that define it.

#include <gtest/gtest.h>
#include <ostrel/character_class.h>

#include <array>

namespace ostrel::tests {

namespace {

struct Range {
    int first;
    int last;
    unsigned char entry;
};

constexpr std::array<Range, 23> kRanges = {{
    {0x00, 0x08, 0x08},  // control
    {0x09, 0x0D, 0x28},  // tab to carriage return: control, space
    {0x0E, 0x1F, 0x08},  // control
    {0x20, 0x20, 0xA0},  // space: space, blank
    {0x21, 0x2F, 0x10},  // ! to /
    {0x30, 0x39, 0x04},  // 0 to 9
    {0x3A, 0x40, 0x10},  // : to @
    {0x41, 0x46, 0x41},  // A to F: upper, hexadecimal letter
    {0x47, 0x5A, 0x01},  // G to Z
    {0x5B, 0x60, 0x10},  // [ to `
    {0x61, 0x66, 0x42},  // a to f: lower, hexadecimal letter
    {0x67, 0x7A, 0x02},  // g to z
    {0x7B, 0x7E, 0x10},  // { to ~
    {0x7F, 0x7F, 0x08},  // delete
    {0x80, 0x9F, 0x00},  // no class
    {0xA0, 0xA0, 0xA0},  // no-break space: space, blank
    {0xA1, 0xBF, 0x10},  // symbols
    {0xC0, 0xD6, 0x01},  // upper-case accented letters
    {0xD7, 0xD7, 0x10},  // multiplication sign
    {0xD8, 0xDE, 0x01},  // upper-case accented letters
    {0xDF, 0xF6, 0x02},  // sharp s, lower-case accented letters
    {0xF7, 0xF7, 0x10},  // division sign
    {0xF8, 0xFF, 0x02},  // lower-case accented letters
}};

TEST(CharacterClass, EveryEntryIsThatOfItsRange)
{
    int next = 0;
    for (const Range& range : kRanges) {
        ASSERT_EQ(next, range.first) << "a gap in the ranges";
        for (; next <= range.last; ++next) EXPECT_EQ(range.entry, ostrel_ctype[next]) << "byte " << next;
    }
    EXPECT_EQ(256, next);
    EXPECT_EQ(256U, sizeof ostrel_ctype);
}

TEST(CharacterClass, TheBitsHaveTheirNames)
{
    EXPECT_EQ(0x01, CT_UPPER);
    EXPECT_EQ(0x02, CT_LOWER);
    EXPECT_EQ(0x04, CT_DIGIT);
    EXPECT_EQ(0x08, CT_CNTRL);
    EXPECT_EQ(0x10, CT_PUNCT);
    EXPECT_EQ(0x20, CT_SPACE);
    EXPECT_EQ(0x40, CT_XLETTER);
    EXPECT_EQ(0x80, CT_BLANK);
}

}  // namespace

}  // namespace ostrel::tests
