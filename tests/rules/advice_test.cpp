// Tests that the advice in every kind of reason can be followed, as oracle/advice.h defines it, and that a
// false reason is detected. fuzz/ follows the reasons of all checks.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "oracle/advice.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/words.h"

namespace ostrel::rules {

namespace {

// fault_of follows the reason for a refusal and returns the fault found in the reason, or an empty string.
std::string fault_of(const Check& check, const std::vector<Value>& values)
{
    const Build build;
    const Answer answer = evaluate(check, values, build);
    EXPECT_TRUE(answer.is_refusal);
    return oracle::Follower().follow(check, values, build, answer, [](const auto&, const auto&) {});
}

std::string fault_of(Condition condition, const std::string& value)
{
    return fault_of(
        registered(check("a_check", {text("value", "a text")}, {refuse(-1, std::move(condition))})), {value});
}

TEST(AdviceTest, EveryIdHasAWay)
{
    std::vector<std::string> with_sentence;
    std::vector<std::string> with_way;
    for (const Sentence& sentence : sentences()) with_sentence.emplace_back(sentence.id);
    for (const oracle::Way& way : oracle::ways()) {
        with_way.emplace_back(way.id);
        EXPECT_TRUE(way.advise != nullptr || !way.instead.empty()) << way.id;
    }
    EXPECT_EQ(with_sentence, with_way);
}

// No sentence contains a number, so every printed number comes from the reason.
TEST(AdviceTest, NoSentenceHasANumberOfItsOwn)
{
    for (const Sentence& sentence : sentences())
        EXPECT_EQ(std::string::npos, sentence.text.find_first_of("0123456789")) << sentence.id;
}

TEST(AdviceTest, WhatIsTrueHolds)
{
    EXPECT_EQ("", fault_of(longer_than(5), "123456789"));
    EXPECT_EQ("", fault_of(shorter_than(5), "1"));
    EXPECT_EQ("", fault_of(length_not({10, 26}), "1"));
    EXPECT_EQ("", fault_of(outside(kDigits), "12x"));
    EXPECT_EQ("", fault_of(none_of({"a", "b"}), "c"));
    EXPECT_EQ("", fault_of(one_of({"a", "b"}), "a"));
    EXPECT_EQ("", fault_of(not_(begins_with({"ab"})), "c"));
    EXPECT_EQ("", fault_of(above(65535), "65536"));
    EXPECT_EQ("", fault_of(above(65535), "99999999999"));
    EXPECT_EQ("", fault_of(not_(between(it, 5, 7)), "9"));
    EXPECT_EQ("", fault_of(between(it, 5, 7), "6"));
    EXPECT_EQ("", fault_of(not_among(it, {1, 6, 11}), "x"));
    EXPECT_EQ("", fault_of(lacks_shape({{some(kDigits, 2), one(":"), some(kDigits, 2)}}), "12.34"));
    EXPECT_EQ("", fault_of(lacks_shape({{some(kDigits, 2), one(":"), some(kDigits, 2)}}), "12:345"));
    EXPECT_EQ("", fault_of(empty(), ""));
    EXPECT_EQ("", fault_of(not_empty(), "a"));
}

// In each of these checks, the reason names a limit other than the one that determines the verdict.
TEST(AdviceTest, AFalseLimitIsNoticed)
{
    EXPECT_EQ("does not come back with one step less: has 11 bytes; at most 5 are allowed",
              fault_of(all_of({longer_than(10), longer_than(5)}), "12345678901"));
    EXPECT_EQ("comes back though it was followed: has 11 bytes; at most 5 are allowed",
              fault_of(all_of({longer_than(3),
                               any_of({all_of({longer_than(6), longer_than(5)}),
                                       all_of({shorter_than(6), because("too_long", longer_than(4))})})}),
                       "12345678901"));
    EXPECT_EQ("does not come back with one step less: is 9; at most 5 is allowed",
              fault_of(all_of({above(7), above(5)}), "9"));
    EXPECT_EQ("does not come back with one step less: is 0; at least 5 is needed",
              fault_of(all_of({below(3), below(5)}), "0"));
    EXPECT_EQ("does not come back with one step less: is 9; the allowed range is 5 to 7",
              fault_of(all_of({above(8), not_(between(it, 5, 7))}), "9"));
}

TEST(AdviceTest, AFalseSetIsNoticed)
{
    EXPECT_EQ("does not come back with one step less: byte 1 is \"z\"; digits are allowed",
              fault_of(all_of({outside(kDigits | Set(":/")), outside(kDigits)}), "z"));
    EXPECT_EQ("does not come back with one step less: is not one of a, b",
              fault_of(all_of({none_of({"ax", "bx"}), none_of({"a", "b"})}), "c"));
}

TEST(AdviceTest, AWrongWordForTheSameVerdictIsNoticed)
{
    EXPECT_NE("", fault_of(because("too_short", longer_than(5)), "123456789"));
    EXPECT_NE("", fault_of(because("too_long", shorter_than(5)), "123"));
    EXPECT_NE("", fault_of(because("number_too_low", above(5)), "7"));
}

TEST(AdviceTest, AReasonThatNobodyCanFollowIsNoticed)
{
    EXPECT_EQ("no way to follow not_equal", fault_of(not_equal(it, literal("a")), "b"));
}

// The limit of a part is reported before that of the whole value.
TEST(AdviceTest, LastOctetsHaveTheirOwnLimit)
{
    for (const char* router : {"192.168.1.256", "192.168.1.255"}) {
        const Answer answer = evaluate(*find("TcmValidateIPRouter"), std::vector<Value>{router}, Build());
        EXPECT_EQ(Datum(254LL), answer.reason.allowed) << router;
    }
}

// Shortening the label turns the whole value into an address. If this address is refused for its length, that
// is a different fault.
TEST(AdviceTest, AReasonOfAnotherPartIsAnotherOne)
{
    EXPECT_EQ("", fault_of(*find("TcmValidateVoIPSTUNServer"), {"2222222222222222222225G.1.1."}));
}

TEST(AdviceTest, WhatWasJudgedIsAPieceOfTheArgument)
{
    const std::vector<Value> values = {"1.1.1.1, 1.1.1.300"};
    const Answer answer = evaluate(*find("TcmValidateofferDNS"), values, Build());
    const Span judged = answer.reason.judged.value_or(Span());
    EXPECT_EQ(15U, judged.begin);
    EXPECT_EQ(3U, judged.size);
}

}  // namespace

}  // namespace ostrel::rules
