// Tests the counts of evaluated steps and conditions, and conditions that are evaluated without a reason.

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "rules/datum.h"
#include "rules/evaluate.h"
#include "rules/rules.h"
#include "rules/sets.h"
#include "rules/words.h"
#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

TEST(CountsTest, EachStepAndConditionCountsOnceInACall)
{
    const Check& mtu = *find("L3FORWARDING_check_MTU");
    Counts counts;
    const Counts::OfCheck& of = counts.checks[mtu.number];
    using Times = std::vector<std::uint64_t>;
    evaluate(mtu, std::vector<Value>{"0"}, Build(), &counts);
    EXPECT_EQ(Times({1, 0}), of.steps);
    EXPECT_EQ(Times({1, 0}), of.held);
    EXPECT_EQ(Times({0, 0}), of.failed);
    evaluate(mtu, std::vector<Value>{"1500"}, Build(), &counts);
    EXPECT_EQ(Times({1, 0}), of.steps);
    EXPECT_EQ(Times({1, 0}), of.held);
    EXPECT_EQ(Times({1, 1}), of.failed);
}

TEST(CountsTest, CasesAndItemsCountToo)
{
    // ValidateURL's steps: refuse an empty value, refuse a byte outside the set, choose between name and
    // address, refuse an invalid name, refuse an invalid address.
    const Check& host = *find("ValidateURL");
    // TcmValidateDomainName's steps: refuse an empty value, refuse a byte outside the set, refuse a value of
    // only digits and dots, refuse too many labels, visit each label, refuse an empty one, refuse a long one.
    const Check& name = *find("TcmValidateDomainName");
    Counts counts;
    using Times = std::vector<std::uint64_t>;
    evaluate(host, std::vector<Value>{"a.b"}, Build(), &counts);
    EXPECT_EQ(Times({0, 0, 1, 0, 0}), counts.checks[host.number].steps);
    EXPECT_EQ(Times({0, 0, 0, 0, 2, 0, 0}), counts.checks[name.number].steps);
    EXPECT_EQ(2U, counts.checks[name.number].held[name.steps[4].condition.number]);
}

TEST(OutsideTest, SaysWhy)
{
    const auto id_of = [](const Answer& answer) { return std::string(answer.reason.id); };
    EXPECT_EQ("null_asserted", id_of(answer_of("PARAM_check_port", {nullptr})));
    EXPECT_EQ("null_read", id_of(answer_of("TcmValidatePort", {nullptr})));
    EXPECT_EQ("driver_asked", id_of(answer_of("WLAN_check_channel", {"1", "RADIO_2.4GHz"})));
    EXPECT_EQ("too_much_work",
              id_of(evaluate_within(1, *find("TcmValidatePort"), std::vector<Value>{"80"}, {})));
    EXPECT_EQ("", id_of(answer_of("TcmValidatePort", {"80"})));
    for (const char* name : {"PARAM_check_ui2_value", "PARAM_check_ui4_value"}) {
        EXPECT_EQ("never_returns", id_of(answer_of(name, {"1"}))) << name;
        EXPECT_EQ("never_returns", id_of(answer_of(name, {"1x"}))) << name;
        EXPECT_EQ(402, answer_of(name, {"A1"}).code) << name;
    }
}

Check registered_with(std::vector<Step> steps)
{
    std::vector<ArgumentWords> arguments;
    arguments.push_back(text("one", "a text"));
    arguments.push_back(text("two", "a password").secret().asserts("two"));
    return registered(check("a_check", std::move(arguments), std::move(steps)));
}

TEST(OutsideTest, EveryArgumentMayAssert)
{
    const Check check = registered_with({refuse(1, empty())});
    EXPECT_EQ(Outside::kAssertion, evaluate(check, std::vector<Value>{"", nullptr}, {}).outside);
    EXPECT_EQ(Outside::kNo, evaluate(check, std::vector<Value>{"", ""}, {}).outside);
}

TEST(HidingTest, HidesSecretsAlone)
{
    const Check check = registered_with({refuse(1, always(), line("<one> <two>"))});
    const std::vector<Value> values = {"abc", "def"};
    EXPECT_EQ("abc def", evaluate(check, values, {}).out);
    EXPECT_EQ("abc " + length_shown(3), evaluate_hiding(kMostWork, check, values, {}).out);
}

TEST(ExplainTest, NothingIsLeftOfAnotherCall)
{
    const std::vector<Value> refused = {"65536"};
    const std::vector<Value> is_null = {nullptr};
    const Check& port = *find("PARAM_check_port");
    Answer answer;
    explain_within(kMostWork, port, refused, {}, answer);
    EXPECT_EQ(601, answer.code);
    EXPECT_TRUE(answer.is_refusal);
    EXPECT_EQ("number_too_high", answer.reason.id);
    EXPECT_EQ("", answer.out);
    explain_within(kMostWork, port, is_null, {}, answer);
    EXPECT_EQ(0, answer.code);
    EXPECT_FALSE(answer.is_refusal);
    EXPECT_EQ(Outside::kAssertion, answer.outside);
    EXPECT_EQ("null_asserted", answer.reason.id);
}

TEST(WriteTest, WhatIsWrittenIsJudgedFromItsBeginning)
{
    const Answer answer = answer_of({write("one", slice(it, 1)), refuse(-1, longer_than(1))}, {"abc"});
    const Span judged = answer.reason.judged.value_or(Span{9, 9});
    EXPECT_EQ(0U, judged.begin);
    EXPECT_EQ(2U, judged.size);
}

TEST(OffsetTest, IsZeroWithoutAFault)
{
    EXPECT_EQ(0, answer_of({refuse(1, above("offset", 0)), refuse(2, below("offset", 0))}, {""}).code);
    EXPECT_EQ("at 0", answer_of({refuse(1, empty(), line("at <offset>"))}, {""}).out);
}

TEST(CutTest, WithoutASeparatorAllIsAfterIt)
{
    EXPECT_EQ(
        "abc",
        answer_of({remember("end", after_last(it, ".")), refuse(1, always(), line("<end>"))}, {"abc"}).out);
}

TEST(DaysTest, AreNoneOutsideTheYear)
{
    const auto of = [](const char* month) {
        return answer_of({remember("days", days(2024, it)), refuse(1, always(), line("<days>"))}, {month})
            .out;
    };
    EXPECT_EQ("31", of("1"));
    EXPECT_EQ("31", of("12"));
    for (const char* month : {"0", "-1", "13", "14", "2147483647"}) EXPECT_EQ("0", of(month)) << month;
}

TEST(WorkTest, ALimitMayBeReached)
{
    const std::vector<Value> values = {"80"};
    std::uint64_t least = 1;
    while (evaluate_within(least, *find("TcmValidatePort"), values, {}).outside != Outside::kNo) ++least;
    // The work is the number of bytes read: two each for the length, the digits and the number.
    EXPECT_EQ(0U, least % 2);
}

// A search compares only a few bytes at nearly every position.
TEST(WorkTest, OfASearchIsLittleMoreThanOneOfTheText)
{
    const Check check = registered_with({refuse(1, contains("one", literal("abc")))});
    const std::vector<Value> values = {std::string(1000, 'x'), ""};
    EXPECT_EQ(Outside::kNo, evaluate_within(4096, check, values, {}).outside);
}

TEST(ModelTest, OfAnotherModel)
{
    Build other;
    other.model = "M2841";
    EXPECT_EQ(-1, answer_of("WLAN_check_radio_id", {"RADIO_5GHz"}, other).code);
    EXPECT_EQ(0, answer_of("WLAN_check_radio_id", {"radio_2.4ghz"}, other).code);
    EXPECT_EQ(1001, answer_of("WLAN_check_HNAP_SecurityType", {"1", "auto", "x", "AES"}, other).code);
}

// The conditions of "when" are evaluated without producing a reason.
TEST(WhenTest, TakesEveryCondition)
{
    static const Table kTable = {{"a column"}, {{"a"}, {"b"}}};
    const std::vector<Step> refusal = {refuse(5, always())};
    const std::vector<Step> in_a_row = {when(in_table(kTable, {{0, Match::How::kEqual, it}}), refusal)};
    EXPECT_EQ(5, answer_of(in_a_row, {"b"}).code);
    EXPECT_EQ(0, answer_of(in_a_row, {"c"}).code);
    const std::vector<Step> is_null = {when(null(it), refusal)};
    EXPECT_EQ(5, answer_of(is_null, {nullptr}).code);
    EXPECT_EQ(0, answer_of(is_null, {"a"}).code);
    const std::vector<Step> is_last = {
        for_each(list_of(it, ','), {when(last_item(), {refuse(6, empty())}, {refuse(7, empty())})})};
    EXPECT_EQ(6, answer_of(is_last, {"a,"}).code);
    EXPECT_EQ(7, answer_of(is_last, {",a"}).code);
    Build build;
    build.channels = std::vector<int>{1, 6};
    const std::vector<Step> is_listed = {when(listed_by_driver(it, 2, 14), refusal)};
    EXPECT_EQ(5, answer_of(is_listed, {"6"}, build).code);
    EXPECT_EQ(0, answer_of(is_listed, {"7"}, build).code);
    static const Grammar kNoX = {
        "a text without x", {}, {}, {}, [](std::string_view text, const Build& /*build*/) {
            std::optional<GrammarFault> fault;
            if (text == "x") fault = GrammarFault{"x"};
            return fault;
        }};
    const std::vector<Step> is_failing = {when(fails(kNoX), refusal)};
    EXPECT_EQ(5, answer_of(is_failing, {"x"}).code);
    EXPECT_EQ(0, answer_of(is_failing, {"y"}).code);
    for (const bool is_negated : {false, true}) {
        const Condition shaped = has_shape({{some(kDigits, 2)}});
        const std::vector<Step> is_shaped = {when(is_negated ? not_(shaped) : shaped, refusal)};
        EXPECT_EQ(is_negated ? 0 : 5, answer_of(is_shaped, {"12"}).code);
        EXPECT_EQ(is_negated ? 5 : 0, answer_of(is_shaped, {"1"}).code);
    }
}

}  // namespace

}  // namespace ostrel::rules
