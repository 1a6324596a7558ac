// Tests the properties that the automaton derives for all strings of a language.

#include "rules/language/automaton.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "rules/sets.h"

namespace ostrel::tests {

using rules::Interval;
using rules::Intervals;
using rules::Language;
using rules::Languages;
using rules::Set;
using Kind = rules::Expression::Kind;

namespace {

TEST(AutomatonTest, Summary)
{
    Languages languages;
    const auto summary = [&](Language one) { return rules::summary_of(languages, one).value(); };
    const rules::Summary words = summary(languages.words({"b", "abc"}, false));
    EXPECT_EQ(words.shortest, 1);
    EXPECT_EQ(words.longest, 3);
    EXPECT_EQ(words.lengths, (std::vector<long long>{1, 3}));
    EXPECT_EQ(words.bytes, Set("abc"));
    EXPECT_EQ(words.texts, (std::vector<std::string>{"abc", "b"}));
    const rules::Summary long_ones = summary(languages.of_length({8, Intervals::kHighest}));
    EXPECT_EQ(long_ones.shortest, 8);
    EXPECT_FALSE(long_ones.longest);
    EXPECT_EQ(long_ones.bytes, rules::kEveryByte);
    EXPECT_FALSE(long_ones.texts);
    EXPECT_TRUE(summary(languages.both({languages.of_length({3, 3}), languages.text("ab")})).is_empty);
    EXPECT_FALSE(summary(languages.repeated(languages.byte(rules::kDigits), 2, 2)).texts) << "a hundred";
    const Language far = languages.of_length({0, static_cast<long long>(rules::kMostStates) + 1});
    EXPECT_FALSE(rules::summary_of(languages, far));
    EXPECT_FALSE(rules::is_empty(languages, languages.both({far, languages.text("")})));
    const Language tail =
        languages.within({Kind::kSlice, "", 3, Languages::kMany}, languages.text("ab")).value();
    EXPECT_EQ(summary(tail).longest, 5);
}

// In a string with one "@", both cuts select the same number. One sets an upper and the other a lower limit
// for it, so both limits apply.
TEST(AutomatonTest, WhatFollowsTellsMoreBytesApart)
{
    Languages languages;
    for (const long long low : {100, 250, 333}) {
        for (const long long high : {350, 399, 444, 777}) {
            const Language one = languages.both(
                {languages.within({Kind::kAfterFirst, "@"}, languages.of_number({0, high})).value(),
                 languages.within({Kind::kAfterLast, "@"}, languages.of_number({low, 999})).value()});
            for (const Interval& tried : std::vector<Interval>{
                     {100, 350}, {250, 399}, {250, 400}, {333, 777}, {300, 445}, {334, 334}, {249, 251}}) {
                const Language texts =
                    languages.joined(languages.text("@"), languages.decimals(tried.low, tried.high));
                EXPECT_EQ(rules::includes(languages, one, texts), low <= tried.low && tried.high <= high)
                    << low << " " << high << " " << tried.low << " " << tried.high;
            }
        }
    }
}

}  // namespace

}  // namespace ostrel::tests
