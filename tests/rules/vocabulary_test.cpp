// Vocabulary test: the words by themselves.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>
#include <stdexcept>

#include "rules/build.h"
#include "rules/evaluate.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/sets.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

Answer answer_of(std::string_view name, const std::vector<Value>& values)
{
    return evaluate(*find(name), values, Build());
}

std::string told(std::string_view name, const std::vector<Value>& values)
{
    const Answer answer = answer_of(name, values);
    return answer.is_refusal ? sentence(answer.reason) : "accepted";
}

TEST(BuildTest, NumbersBeyondAnInt)
{
    using Atoi = Build::Atoi;
    EXPECT_EQ(read_number("99999999999999999999", Atoi::kLong64).value, -1);
    EXPECT_EQ(read_number("99999999999999999999", Atoi::kLong32).value, 2147483647);
    EXPECT_EQ(read_number("99999999999999999999", Atoi::kWrapping).value, 1661992959);
    EXPECT_EQ(read_number("-99999999999999999999", Atoi::kLong64).value, 0);
    EXPECT_EQ(read_number("-99999999999", Atoi::kLong32).value, std::numeric_limits<int>::min());
    EXPECT_EQ(read_number("4294967297", Atoi::kLong64).value, 1);
    EXPECT_EQ(read_number("-4294967297", Atoi::kWrapping).value, -1);
    EXPECT_TRUE(read_number("2147483648", Atoi::kLong64).beyond_int);
    EXPECT_FALSE(read_number("2147483647", Atoi::kLong64).beyond_int);
    EXPECT_FALSE(read_number("-2147483648", Atoi::kLong64).beyond_int);
    EXPECT_TRUE(read_number("-2147483649", Atoi::kLong64).beyond_int);
}

TEST(BuildTest, NumbersAmongOtherBytes)
{
    const Number number = read_number("\v +12x3", Build::Atoi::kLong64);
    EXPECT_EQ(number.value, 12);
    EXPECT_EQ(number.begin, 2);
    EXPECT_EQ(number.end, 5);
    EXPECT_EQ(read_number("", Build::Atoi::kLong64).value, 0);
    EXPECT_EQ(read_number("x1", Build::Atoi::kLong64).value, 0);
    EXPECT_EQ(read_number("- 1", Build::Atoi::kLong64).value, 0);
}

TEST(SetTest, InWords)
{
    EXPECT_EQ(in_words(kNameSet), "letters, digits and - . _");
    EXPECT_EQ(in_words(kHex), "hexadecimal digits");
    EXPECT_EQ(in_words(kLatin1), "printable Latin-1 characters");
    EXPECT_EQ(in_words(kDeviceName), "letters, digits, blanks and -");
    EXPECT_EQ(in_words(Set("01234")), "0 to 4");
    EXPECT_EQ(in_words(Set(":")), "\":\"");
    EXPECT_EQ(in_words(Set("ab")), "a b");
    EXPECT_EQ(in_words(Set()), "no bytes");
    EXPECT_EQ(in_words(Set("\x01\xFF")), "\\x01 \\xFF");
}

TEST(SentencesTest, StandInOrder) { EXPECT_TRUE(std::ranges::is_sorted(sentences(), {}, &Sentence::id)); }

TEST(SentencesTest, AreWhatAUserReads)
{
    EXPECT_EQ(told("ValidateString", {1LL, 32LL, "abc", std::string(34, 'a')}),
              "has 34 bytes; at most 32 are allowed");
    EXPECT_EQ(told("ValidateString", {1LL, 1LL, "abc", "aa"}), "has 2 bytes; at most 1 is allowed");
    EXPECT_EQ(told("ValidateString", {2LL, 5LL, "abc", "a"}), "has 1 byte; at least 2 are needed");
    EXPECT_EQ(told("TcmValidateEmailPassword", {"abcde\x9F"}),
              "byte 6 is \\x9F; letters, digits and - . _ are allowed");
    EXPECT_EQ(told("TcmValidateBeaconType", {"wpa"}), "is none of None, Basic, WPA, 11i, WPAand11i");
    EXPECT_EQ(told("TcmValidatePort", {"0"}), "is 0; at least 1 is needed");
    EXPECT_EQ(told("TcmValidatePort", {"99999999999999999999"}),
              "is 99999999999999999999, which an int does not hold; this gateway reads it as -1");
    EXPECT_EQ(told("TcmValidateMACaddress", {"00:11:22:33:44-55"}),
              "byte 15 is \"-\"; \":\" is expected there");
    EXPECT_EQ(
        told("isValidOrdinaryMACAddress", {"01:11:22:33:44:55"}),
        "byte 2 is \"1\", which makes it the address of a group; 0 2 4 6 8 A C E a c e are allowed there");
    EXPECT_EQ(told("TcmValidateofferDNS", {"1.1.1.1, 1.1.1.300"}), "is 300; at most 255 is allowed");
    EXPECT_EQ(told("TcmValidatePPPUsername", {std::string(27, '1') + "@example.net", 0LL}),
              "ends where digits are expected as byte 28");
}

TEST(ReasonTest, SaysWhere)
{
    const Answer answer = answer_of("TcmValidateofferDNS", {"1.1.1.1, 1.1.1.300"});
    EXPECT_EQ(answer.reason.id, "number_too_high");
    EXPECT_EQ(answer.reason.name, "dnsList");
    EXPECT_EQ(answer.reason.argument, 0);
    EXPECT_EQ(answer.reason.item, 1);
    EXPECT_EQ(answer.reason.offset, 15);
    EXPECT_EQ(answer.reason.found, Datum(300LL));
    EXPECT_EQ(answer.reason.allowed, Datum(255LL));
}

TEST(ReasonTest, OfStepsThatWentOn)
{
    const Answer answer =
        answer_of("WLAN_check_wepkeys", {std::vector<std::string>{"0123456789", "", "a\tb", "012345678g"}});
    EXPECT_EQ(answer.code, 803);
    EXPECT_EQ(answer.reason.item, 3);
    EXPECT_EQ(answer.reason.offset, 9);
    ASSERT_EQ(answer.printed.size(), 2);
    EXPECT_EQ(answer.printed[0].id, "empty");
    EXPECT_EQ(answer.printed[0].item, 1);
    EXPECT_EQ(answer.printed[1].id, "not_in_set");
    EXPECT_EQ(answer.printed[1].offset, 1);
}

// Words that no description needs yet, or that need a build of their own.
Answer answer_of(std::vector<Step> steps, const std::vector<Value>& values, const Build& build = {})
{
    std::vector<ArgumentWords> arguments;
    for (const char* name : {"one", "two", "three"}) {
        if (arguments.size() < values.size()) arguments.push_back(text(name, "a text"));
    }
    return evaluate(registered(check("a_check", std::move(arguments), std::move(steps))), values, build);
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
    EXPECT_THROW(paired("1", "3"), std::logic_error);  // nothing has the name
    const auto looked_up = [](const char* part) {
        return answer_of({refuse(-1, not_(in_table(kPairs, {{0, Match::How::kPart, "one"}}))),
                          remember("found", cell(1)), print(line("<found>"))},
                         {part});
    };
    EXPECT_EQ(looked_up("6").out, "38");
    EXPECT_EQ(looked_up("").out, "3");
    EXPECT_EQ(looked_up("7").reason.id, "not_in_table");
    EXPECT_EQ(looked_up("7").reason.allowed, Datum(std::vector<std::string>{"1", "36", "40"}));
    const Step equal_cell = refuse(-1, not_(in_table(kPairs, {{0, Match::How::kEqual, "one"}})));
    EXPECT_EQ(answer_of({equal_cell}, {"36"}).code, 0);
    EXPECT_EQ(answer_of({equal_cell}, {"036"}).code, -1);
}

TEST(WordsTest, DaysOfMonths)
{
    const auto judge = [](const char* year, const char* month, const char* day) {
        return answer_of({refuse(-1, above("three", days("one", "two")))}, {year, month, day}).code;
    };
    EXPECT_EQ(judge("2023", "2", "28"), 0);
    EXPECT_EQ(judge("2023", "2", "29"), -1);
    EXPECT_EQ(judge("2024", "2", "29"), 0);
    EXPECT_EQ(judge("1900", "2", "29"), -1);
    EXPECT_EQ(judge("2000", "2", "29"), 0);
    EXPECT_EQ(judge("2000", "4", "31"), -1);
    EXPECT_EQ(judge("2000", "12", "31"), 0);
    EXPECT_EQ(judge("2000", "13", "1"), -1);
    EXPECT_EQ(judge("2000", "0", "0"), 0);
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
    EXPECT_EQ(answer_of({refuse(600, fails(kEven))}, {"ab"}).code, 0);
    const Answer answer = answer_of({refuse(600, fails(kEven, after_first(it, ":")))}, {"x:abc"});
    EXPECT_EQ(answer.code, 600);
    EXPECT_EQ(answer.reason.id, "too_short");
    EXPECT_EQ(answer.reason.offset, 5);
}

TEST(WordsTest, ConversionsAreWritten)
{
    static const Conversion kDoubled = {
        "doubled", [](std::string_view text) { return std::string(text) + std::string(text); }};
    const Check described = registered(check(
        "a_check", {buffer("value", "a text")},
        {write("value", converted(kDoubled, "value")), refuse(802, longer_than(3), line("<value>\n"))}));
    const std::vector<Value> values = {"ab"};
    const Answer answer = evaluate(described, values, Build());
    EXPECT_EQ(answer.code, 802);
    EXPECT_EQ(answer.out, "abab\n");
    EXPECT_EQ(answer.after, std::vector<Value>{"abab"});
}

TEST(WordsTest, ChannelsOfTheDriver)
{
    const Step step = refuse(-1, not_(listed_by_driver(it)));
    EXPECT_EQ(answer_of({step}, {"1"}).outside, Outside::kDriver);
    Build build;
    build.channels = {1, 6, 11};
    EXPECT_EQ(answer_of({step}, {"6"}, build).code, 0);
    EXPECT_EQ(answer_of({step}, {"7"}, build).reason.id, "not_listed_by_driver");
}

TEST(WordsTest, TheBuildsModel)
{
    const Step step = refuse(1001, equal(model(), literal("M2840")));
    EXPECT_EQ(answer_of({step}, {""}).code, 1001);
    Build build;
    build.model = "M2841";
    EXPECT_EQ(answer_of({step}, {""}, build).code, 0);
}

TEST(OutsideTest, WhatTheContractDoesNotPromise)
{
    EXPECT_EQ(answer_of("PARAM_check_port", {nullptr}).outside, Outside::kAssertion);
    EXPECT_EQ(answer_of("PARAM_check_ip_addr", {nullptr}).outside, Outside::kNull);
    EXPECT_EQ(answer_of("PARAM_check_ui2_value", {"1"}).outside, Outside::kNeverReturns);
    EXPECT_EQ(answer_of("PARAM_check_MACAddress", {nullptr}).outside, Outside::kNo);
}

}  // namespace

}  // namespace ostrel::rules
