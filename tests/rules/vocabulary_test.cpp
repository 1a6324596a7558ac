// Vocabulary test: the words by themselves.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

#include "rules/build.h"
#include "rules/evaluate.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/sets.h"

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

TEST(OutsideTest, WhatTheContractDoesNotPromise)
{
    EXPECT_EQ(answer_of("PARAM_check_port", {nullptr}).outside, Outside::kAssertion);
    EXPECT_EQ(answer_of("PARAM_check_ip_addr", {nullptr}).outside, Outside::kNull);
    EXPECT_EQ(answer_of("PARAM_check_ui2_value", {"1"}).outside, Outside::kNeverReturns);
    EXPECT_EQ(answer_of("PARAM_check_MACAddress", {nullptr}).outside, Outside::kNo);
}

}  // namespace

}  // namespace ostrel::rules
