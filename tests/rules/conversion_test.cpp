// Tests how descriptions convert character references.

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "rules/character_references.h"
#include "tests/support/reference_names.h"

namespace ostrel::rules {

namespace {

std::string converted(const std::string& text) { return character_references().convert(text); }

TEST(ConversionTest, EachNameStandsForItsByte)
{
    for (const auto& [name, byte] : tests::reference_names()) {
        const std::string character(1, static_cast<char>(byte));
        EXPECT_EQ(character, converted("&" + name + ";")) << name;
        EXPECT_EQ("a" + character + "b", converted("a&" + name + ";b")) << name;
        EXPECT_EQ("&" + name, converted("&" + name)) << name;
        EXPECT_EQ("&" + name + " ;", converted("&" + name + " ;")) << name;
    }
}

TEST(ConversionTest, EachNumberStandsForItsByte)
{
    for (int number = 1; number < 256; ++number) {
        char hexadecimal[16];
        std::snprintf(hexadecimal, sizeof hexadecimal, "%x;", static_cast<unsigned>(number));
        const std::string character(1, static_cast<char>(number));
        EXPECT_EQ(character, converted("&#" + std::to_string(number) + ";"));
        EXPECT_EQ(character, converted("&#x" + std::string(hexadecimal)));
        EXPECT_EQ(character, converted("&#X0" + std::string(hexadecimal)));
    }
}

TEST(ConversionTest, WhatNoByteStandsForIsSubstituted)
{
    for (const char* text : {"&#256;", "&#x100;", "&#8364;", "&#99999999999999999999;", "&#xfffffffff;"})
        EXPECT_EQ("\x1A", converted(text)) << text;
}

TEST(ConversionTest, WhatIsNoReferenceStays)
{
    for (const char* text :
         {"",       "&",   ";",     "&;", "&#;",   "&#x;", "&#0;",    "&#x0;", "&#-1;",   "&#+1;", "&#1g;",
          "&#x1g;", "&a;", "&AMP;", "&&", "&nbsp", "&#65", "x&#65 ;", "a&b;c", "&#x 41;", "amp;"})
        EXPECT_EQ(text, converted(text));
    EXPECT_EQ("&<", converted("&&lt;"));
    EXPECT_EQ("&lt;", converted("&amp;lt;"));
}

TEST(ConversionTest, ExamplesAreChanged)
{
    const Conversion& conversion = character_references();
    EXPECT_EQ("with character references replaced", conversion.what);
    EXPECT_EQ(tests::reference_names().size() + 4, conversion.changed.size());
    std::string all;
    for (const std::string& text : conversion.changed) {
        EXPECT_EQ(1U, converted(text).size()) << text;
        all += converted(text);
    }
    EXPECT_EQ("AAA\x1A&<>\"'", all.substr(0, 9));
}

}  // namespace

}  // namespace ostrel::rules
