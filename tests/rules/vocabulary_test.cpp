#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "rules/build.h"
#include "rules/evaluate.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/sets.h"
#include "rules/words.h"
#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

TEST(BuildTest, NumbersBeyondAnInt)
{
    using Atoi = Build::Atoi;
    EXPECT_EQ(-1, read_number("99999999999999999999", Atoi::kLong64).value);
    EXPECT_EQ(2147483647, read_number("99999999999999999999", Atoi::kLong32).value);
    EXPECT_EQ(1661992959, read_number("99999999999999999999", Atoi::kWrapping).value);
    EXPECT_EQ(0, read_number("-99999999999999999999", Atoi::kLong64).value);
    EXPECT_EQ(std::numeric_limits<int>::min(), read_number("-99999999999", Atoi::kLong32).value);
    EXPECT_EQ(1, read_number("4294967297", Atoi::kLong64).value);
    EXPECT_EQ(-1, read_number("-4294967297", Atoi::kWrapping).value);
    EXPECT_TRUE(read_number("2147483648", Atoi::kLong64).beyond_int);
    EXPECT_FALSE(read_number("2147483647", Atoi::kLong64).beyond_int);
    EXPECT_FALSE(read_number("-2147483648", Atoi::kLong64).beyond_int);
    EXPECT_TRUE(read_number("-2147483649", Atoi::kLong64).beyond_int);
}

TEST(BuildTest, NumbersAreReadAsHere)
{
    for (const char* number : {"99999999999999999999", "-99999999999999999999", "4294967297", "-4294967297"})
        EXPECT_EQ(std::atoi(number), read_number(number, atoi_here()).value) << number;
}

TEST(BuildTest, NumbersAmongOtherBytes)
{
    const Number number = read_number("\v +12x3", Build::Atoi::kLong64);
    EXPECT_EQ(12, number.value);
    EXPECT_EQ(2, number.begin);
    EXPECT_EQ(5, number.end);
    EXPECT_EQ(0, read_number("", Build::Atoi::kLong64).value);
    EXPECT_EQ(0, read_number("x1", Build::Atoi::kLong64).value);
    EXPECT_EQ(0, read_number("- 1", Build::Atoi::kLong64).value);
    // Bytes after the end of a piece are not read.
    EXPECT_EQ(1, read_number(std::string_view("  1").substr(0, 1), Build::Atoi::kLong64).begin);
    EXPECT_EQ(0, read_number(std::string_view("-1").substr(0, 0), Build::Atoi::kLong64).value);
}

TEST(SetTest, InWords)
{
    EXPECT_EQ("letters, digits and - . _", in_words(kNameSet));
    EXPECT_EQ("hexadecimal digits", in_words(kHex));
    EXPECT_EQ("printable Latin-1 characters", in_words(kLatin1));
    EXPECT_EQ("letters, digits, spaces and -", in_words(kDeviceName));
    EXPECT_EQ("0 to 4", in_words(Set("01234")));
    EXPECT_EQ("\":\"", in_words(Set(":")));
    EXPECT_EQ("a b", in_words(Set("ab")));
    EXPECT_EQ("no bytes", in_words(Set()));
    EXPECT_EQ("\\x01 \\xFF", in_words(Set("\x01\xFF")));
}

TEST(SentencesTest, StandInOrder) { EXPECT_TRUE(std::ranges::is_sorted(sentences(), {}, &Sentence::id)); }

TEST(SentencesTest, AreWhatAUserReads)
{
    EXPECT_EQ("has 34 bytes; at most 32 are allowed",
              told("ValidateString", {1LL, 32LL, "abc", std::string(34, 'a')}));
    EXPECT_EQ("has 2 bytes; at most 1 is allowed", told("ValidateString", {1LL, 1LL, "abc", "aa"}));
    EXPECT_EQ("has 1 byte; at least 2 are needed", told("ValidateString", {2LL, 5LL, "abc", "a"}));
    EXPECT_EQ("byte 6 is \\x9F; letters, digits and - . _ are allowed",
              told("TcmValidateEmailPassword", {"abcde\x9F"}));
    EXPECT_EQ("is not one of None, Basic, WPA, 11i, WPAand11i", told("TcmValidateBeaconType", {"wpa"}));
    EXPECT_EQ("is 0; at least 1 is needed", told("TcmValidatePort", {"0"}));
    EXPECT_EQ(
        "contains the number 99999999999999999999, which does not fit in an int; this gateway reads it as "
        "-1; "
        "at least 1 is needed",
        told("TcmValidatePort", {"99999999999999999999"}));
    EXPECT_EQ("byte 15 is \"-\"; \":\" is expected there",
              told("TcmValidateMACaddress", {"00:11:22:33:44-55"}));
    EXPECT_EQ("byte 2 is \"1\", which makes this a group address; 0 2 4 6 8 A C E a c e are allowed there",
              told("isValidOrdinaryMACAddress", {"01:11:22:33:44:55"}));
    EXPECT_EQ("octet 4 is 300; at most 255 is allowed", told("TcmValidateofferDNS", {"1.1.1.1, 1.1.1.300"}));
    EXPECT_EQ("the part before the last \"@\" ends before byte 28, where digits are expected",
              told("TcmValidatePPPUsername", {std::string(27, '1') + "@example.net", 0LL}));
}

TEST(ReasonTest, SaysWhere)
{
    const Answer answer = answer_of("TcmValidateofferDNS", {"1.1.1.1, 1.1.1.300"});
    EXPECT_EQ("number_too_high", answer.reason.id);
    EXPECT_EQ("dnsList", answer.reason.name);
    EXPECT_EQ(0, answer.reason.argument);
    EXPECT_EQ(1, answer.reason.item);
    EXPECT_EQ(15, answer.reason.offset);
    EXPECT_EQ(Datum(300LL), answer.reason.found);
    EXPECT_EQ(Datum(255LL), answer.reason.allowed);
}

TEST(ReasonTest, OfStepsThatWentOn)
{
    const Answer answer =
        answer_of("WLAN_check_wepkeys", {std::vector<std::string>{"0123456789", "", "a\tb", "012345678g"}});
    EXPECT_EQ(803, answer.code);
    EXPECT_EQ(3, answer.reason.item);
    EXPECT_EQ(9, answer.reason.offset);
    ASSERT_EQ(2, answer.printed.size());
    EXPECT_EQ("empty", answer.printed[0].id);
    EXPECT_EQ(1, answer.printed[0].item);
    EXPECT_EQ("not_in_set", answer.printed[1].id);
    EXPECT_EQ(1, answer.printed[1].offset);
}

TEST(WordsTest, Tables)
{
    static const Table kPairs = {{"primary", "second"}, {{"1", "3"}, {"36", "38"}, {"40", "38"}}};
    const auto paired = [](const char* primary, const char* second) {
        return answer_of({refuse(-1, not_(in_table(kPairs, {{0, Match::How::kNumber, "one"},
                                                            {1, Match::How::kNumber, "two"}}))),
                          print(line("<found>"))},
                         {primary, second});
    };
    EXPECT_THROW(paired("1", "3"), std::logic_error);  // no value has this name
    const auto looked_up = [](const char* part) {
        return answer_of({refuse(-1, not_(in_table(kPairs, {{0, Match::How::kPart, "one"}}))),
                          remember("found", cell(1)), print(line("<found>"))},
                         {part});
    };
    EXPECT_EQ("38", looked_up("6").out);
    EXPECT_EQ("3", looked_up("").out);
    EXPECT_EQ("not_in_table", looked_up("7").reason.id);
    EXPECT_EQ(Datum(std::vector<std::string_view>{"1", "36", "40"}), looked_up("7").reason.allowed);
    const Answer unpaired = answer_of(
        {refuse(-1,
                not_(in_table(kPairs, {{0, Match::How::kNumber, "one"}, {1, Match::How::kNumber, "two"}})))},
        {"1", "38"});
    EXPECT_EQ(Datum(std::vector<std::string_view>{"36", "40"}), unpaired.reason.allowed);
    const Step equal_cell = refuse(-1, not_(in_table(kPairs, {{0, Match::How::kEqual, "one"}})));
    EXPECT_EQ(0, answer_of({equal_cell}, {"36"}).code);
    EXPECT_EQ(-1, answer_of({equal_cell}, {"036"}).code);
}

TEST(WordsTest, DaysOfMonths)
{
    const auto judge = [](const char* year, const char* month, const char* day) {
        return answer_of({refuse(-1, above("three", days("one", "two")))}, {year, month, day}).code;
    };
    EXPECT_EQ(0, judge("2023", "2", "28"));
    EXPECT_EQ(-1, judge("2023", "2", "29"));
    EXPECT_EQ(0, judge("2024", "2", "29"));
    EXPECT_EQ(-1, judge("1900", "2", "29"));
    EXPECT_EQ(0, judge("2000", "2", "29"));
    EXPECT_EQ(-1, judge("2000", "4", "31"));
    EXPECT_EQ(0, judge("2000", "12", "31"));
    EXPECT_EQ(-1, judge("2000", "13", "1"));
    EXPECT_EQ(0, judge("2000", "0", "0"));
}

TEST(WordsTest, NumbersBetweenTwo)
{
    for (const char* number : {"5", "7", " 6x"}) {
        EXPECT_EQ("number_in_range", answer_of({refuse(402, between(it, 5, 7))}, {number}).reason.id);
        EXPECT_EQ(0, answer_of({refuse(402, not_(between(it, 5, 7)))}, {number}).code);
    }
    for (const char* number : {"4", "8", "", "-6"}) {
        EXPECT_EQ(0, answer_of({refuse(402, between(it, 5, 7))}, {number}).code);
        EXPECT_EQ("number_out_of_range",
                  answer_of({refuse(402, not_(between(it, 5, 7)))}, {number}).reason.id);
    }
}

TEST(WordsTest, Grammars)
{
    static const Grammar kEven = {"an even number of bytes",
                                  {"too_short"},
                                  {"", "ab"},
                                  {"a"},
                                  [](std::string_view text, const Build&) -> std::optional<GrammarFault> {
                                      if (text.size() % 2 == 0) return std::nullopt;
                                      return GrammarFault{"too_short", text.size(), "the end", "a byte"};
                                  }};
    EXPECT_EQ(0, answer_of({refuse(600, fails(kEven))}, {"ab"}).code);
    const Answer answer = answer_of({refuse(600, fails(kEven, after_first(it, ":")))}, {"x:abc"});
    EXPECT_EQ(600, answer.code);
    EXPECT_EQ("too_short", answer.reason.id);
    EXPECT_EQ(5, answer.reason.offset);
}

TEST(WordsTest, ConversionsAreWritten)
{
    static const Conversion kDoubled = {
        "doubled", [](std::string_view text) { return std::string(text) + std::string(text); }, {"a"}};
    const Check described = registered(check(
        "a_check", {buffer("value", "a text")},
        {write("value", converted(kDoubled, "value")), refuse(802, longer_than(3), line("<value>\n"))}));
    const std::vector<Value> values = {"ab"};
    const Answer answer = evaluate(described, values, Build());
    EXPECT_EQ(802, answer.code);
    EXPECT_EQ("abab\n", answer.out);
    EXPECT_EQ(std::vector<Value>{"abab"}, answer.after);
    EXPECT_EQ("doubled", answer.reason.conversion);
    EXPECT_EQ("has 4 bytes; at most 3 are allowed (doubled)", told(answer));
}

TEST(WordsTest, ConversionsThatChangeNothingAreNotTold)
{
    static const Conversion kSame = {"unchanged", [](std::string_view text) { return std::string(text); }};
    const Step step = refuse(802, longer_than(converted(kSame, it), 3));
    EXPECT_EQ("", answer_of({step}, {"abcd"}).reason.conversion);
}

TEST(WordsTest, TheBuildsModel)
{
    const Step step = refuse(1001, equal(model(), literal("M2840")));
    EXPECT_EQ(1001, answer_of({step}, {""}).code);
    Build build;
    build.model = "M2841";
    EXPECT_EQ(0, answer_of({step}, {""}, build).code);
}

TEST(OutsideTest, WhatTheContractDoesNotPromise)
{
    EXPECT_EQ(Outside::kAssertion, answer_of({asserts("one", "one != 0")}, {nullptr}).outside);
    EXPECT_EQ(Outside::kNo, answer_of({asserts("one", "one != 0")}, {""}).outside);
    EXPECT_EQ(Outside::kNull, answer_of({reads("one")}, {nullptr}).outside);
    EXPECT_EQ(Outside::kAssertion, answer_of("PARAM_check_port", {nullptr}).outside);
    EXPECT_EQ(Outside::kNull, answer_of("PARAM_check_ip_addr", {nullptr}).outside);
    EXPECT_EQ(Outside::kNeverReturns, answer_of("PARAM_check_ui2_value", {"1"}).outside);
    EXPECT_EQ(Outside::kNo, answer_of("PARAM_check_MACAddress", {nullptr}).outside);
}

}  // namespace

}  // namespace ostrel::rules
