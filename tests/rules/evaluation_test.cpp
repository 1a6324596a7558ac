// Evaluation test: what is counted, and conditions that are asked for no reason.

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "rules/evaluate.h"
#include "rules/rules.h"
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

// No reason is asked for where cases are distinguished.
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
}

}  // namespace

}  // namespace ostrel::rules
