// The library's own converter of HTML character references, for hosts that supply none, judged against a slow
// one.

#include <gtest/gtest.h>
#include <ostrel/wlan_check.h>

#include <cctype>
#include <cstdint>
#include <cstring>
#include <string>

#include "calling/caller.h"
#include "calling/capture.h"
#include "tests/support/reference_names.h"

namespace ostrel::tests {

namespace {

using calling::Edge;

constexpr int kSubstitute = 0x1A;

// number_of reads digits one by one into a number that no count of them overflows. -1: no number.
int number_of(const std::string& digits, int base)
{
    if (digits.empty()) return -1;
    double number = 0;
    for (const char c : digits) {
        const auto byte = static_cast<unsigned char>(c);
        if (base == 10 ? std::isdigit(byte) == 0 : std::isxdigit(byte) == 0) return -1;
        number = number * base + std::stoi(std::string(1, c), nullptr, 16);
    }
    if (number < 1) return -1;
    return number <= 255 ? static_cast<int>(number) : kSubstitute;
}

// byte_of gives what stands for a reference's text between "&" and ";". -1: none.
int byte_of(const std::string& reference)
{
    if (const auto found = reference_names().find(reference); found != reference_names().end())
        return found->second;
    if (reference.starts_with("#x") || reference.starts_with("#X")) return number_of(reference.substr(2), 16);
    if (reference.starts_with("#")) return number_of(reference.substr(1), 10);
    return -1;
}

std::string convert_slowly(const std::string& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t end = text.find(';', i);
        const int byte =
            text[i] == '&' && end != std::string::npos ? byte_of(text.substr(i + 1, end - i - 1)) : -1;
        if (byte < 0) {
            result += text[i];
        } else {
            result += static_cast<char>(byte);
            i = end;
        }
    }
    return result;
}

class CharacterReferences : public testing::TestWithParam<Edge> {
 protected:
    // convert has the text rewritten in a buffer that ends or begins at an unreadable page.
    std::string convert(const std::string& text)
    {
        char* buffer = memory_.place(text.size() + 1, GetParam());
        std::memcpy(buffer, text.c_str(), text.size() + 1);
        WLAN_check_ssid(buffer);
        capture_.take();
        return buffer;
    }

    void expect_unchanged(const std::string& text) { EXPECT_EQ(text, convert(text)); }

 private:
    calling::GuardedMemory memory_;
    calling::Capture capture_;
};

TEST_P(CharacterReferences, EveryName)
{
    ASSERT_EQ(101U, reference_names().size());
    for (const auto& [name, byte] : reference_names()) {
        const std::string character(1, static_cast<char>(byte));
        EXPECT_EQ(character, convert("&" + name + ";")) << name;
        EXPECT_EQ("a" + character + "b", convert("a&" + name + ";b")) << name;
        EXPECT_EQ(character + character, convert("&" + name + ";&" + name + ";")) << name;
        expect_unchanged("&" + name);
        expect_unchanged("&" + name + " ;");
        expect_unchanged("& " + name + ";");
        expect_unchanged("&" + name + "x;");
        expect_unchanged(name + ";");
        EXPECT_EQ(convert_slowly("&" + name.substr(1) + ";"), convert("&" + name.substr(1) + ";"));
        const std::string shorter = "&" + name.substr(0, name.size() - 1) + ";";
        EXPECT_EQ(convert_slowly(shorter), convert(shorter));
    }
}

// The names are case-sensitive, so each byte of each is replaced by each other.
TEST_P(CharacterReferences, NearMissesOfNames)
{
    for (const auto& [name, byte] : reference_names()) {
        for (std::size_t i = 0; i < name.size(); ++i) {
            for (int other = 1; other < 256; ++other) {
                std::string text = "&" + name + ";";
                text[i + 1] = static_cast<char>(other);
                EXPECT_EQ(convert_slowly(text), convert(text)) << text;
            }
        }
    }
}

TEST_P(CharacterReferences, EveryNumber)
{
    for (int number = -1; number <= 300; ++number) {
        char hexadecimal[16];
        char upper[16];
        std::snprintf(hexadecimal, sizeof hexadecimal, "%x", static_cast<unsigned>(number));
        std::snprintf(upper, sizeof upper, "%X", static_cast<unsigned>(number));
        const std::string forms[] = {"#" + std::to_string(number), "#0000" + std::to_string(number),
                                     std::string("#x") + hexadecimal, std::string("#X") + upper,
                                     std::string("#x000") + upper};
        for (const std::string& form : forms) {
            const std::string text = "&" + form + ";";
            EXPECT_EQ(convert_slowly(text), convert(text)) << text;
            expect_unchanged("&" + form);
            expect_unchanged("&" + form + " ");
            expect_unchanged("&" + form + "g;");
        }
    }
}

// A byte that no number gives would be taken for the character of that number.
TEST_P(CharacterReferences, NumbersAboveAByteAreSubstituted)
{
    const char* const texts[] = {"&#256;",        "&#282;",
                                 "&#2600;",       "&#8364;",
                                 "&#x20AC;",      "&#4294967361;",
                                 "&#x100;",       "&#x1000000;",
                                 "&#65535;",      "&#18446744073709551681;",
                                 "&#x100000041;", "&#x10000000000000041;"};
    for (const char* text : texts) EXPECT_EQ("\x1A", convert(text)) << text;
    expect_unchanged("&#8364");
    expect_unchanged("&#8364 ;");
    expect_unchanged("&#8364x;");
    const std::string zeros(1000, '0');
    EXPECT_EQ("A", convert("&#" + zeros + "65;"));
    EXPECT_EQ("A", convert("&#x" + zeros + "41;"));
    expect_unchanged("&#" + zeros + ";");
    EXPECT_EQ("\x1A", convert("&#" + std::string(1000, '9') + ";"));
    EXPECT_EQ("\x1A", convert("&#x" + std::string(1000, 'f') + ";"));
}

TEST_P(CharacterReferences, WhatAReferenceGivesIsNotReadAgain)
{
    EXPECT_EQ("&lt;", convert("&amp;lt;"));
    EXPECT_EQ("&amp;", convert("&amp;amp;"));
    EXPECT_EQ("&#65;", convert("&#38;#65;"));
    EXPECT_EQ("&lt;", convert("&#x26;lt&#59;"));
}

// Texts of pieces of references, put together at random; the same ones at every run.
TEST_P(CharacterReferences, AgreesWithTheSlowConverter)
{
    const char* const pieces[] = {"&", "&", "#", "x",   "X",   ";",    ";",    "0",   "6",  "5",
                                  "4", "1", "2", "a",   "F",   "amp",  "lt",   "gt",  "q",  "uot",
                                  "n", " ", "9", "eth", "ETH", "yuml", "\xE9", "&#x", "&#", "frac12"};
    std::uint32_t state = 1;
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (int i = 0; i < 12; ++i) {
            state = state * 1664525 + 1013904223;
            text += pieces[(state >> 16) % std::size(pieces)];
        }
        const std::string converted = convert(text);
        EXPECT_EQ(convert_slowly(text), converted) << text;
        EXPECT_LE(converted.size(), text.size());
    }
}

INSTANTIATE_TEST_SUITE_P(, CharacterReferences, testing::Values(Edge::kEnd, Edge::kBegin),
                         [](const auto& given) { return given.param == Edge::kEnd ? "end" : "begin"; });

}  // namespace

}  // namespace ostrel::tests
