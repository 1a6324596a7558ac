// Tests, for every short string over a small alphabet, which languages contain it.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "rules/language/automaton.h"
#include "rules/sets.h"
#include "tests/rules/languages.h"

namespace ostrel::tests {

using rules::Cut;
using rules::Intervals;
using rules::Language;
using rules::Languages;
using rules::Set;
using Kind = rules::Expression::Kind;

namespace {

const std::vector<Intervals>& ranges()
{
    static const std::vector<Intervals> all = {
        {0, 0},
        {1, 12},
        {-3, 5},
        {0, 255},
        {7, 65535},
        {100, 1099},
        {-120, -19},
        {10, Intervals::kHighest},
        {Intervals::kLowest, -1},
        {Intervals::kLowest, 90},
        Intervals(1, 1) | Intervals(6, 6) | Intervals(11, 11),
    };
    return all;
}

TEST(LanguageTest, IntervalsAreSetsOfNumbers)
{
    for (const Intervals& a : ranges()) {
        for (const Intervals& b : ranges()) {
            for (long long number = -150; number < 1200; ++number) {
                const bool is_in_a = a.contains(number);
                const bool is_in_b = b.contains(number);
                ASSERT_EQ((a | b).contains(number), is_in_a || is_in_b);
                ASSERT_EQ((a & b).contains(number), is_in_a && is_in_b);
                ASSERT_EQ((~a).contains(number), !is_in_a);
                ASSERT_EQ(a.moved(-7).contains(number - 7), is_in_a);
            }
        }
    }
}

TEST(LanguageTest, NumbersAreReadAsAtoiReadsThem)
{
    Languages languages;
    for (const Intervals& range : ranges()) {
        const Language one = languages.of_number(range);
        for_each_text(" +-019x", 5, [&](const std::string& text) {
            ASSERT_EQ(languages.contains(one, text), range.contains(std::atoi(text.c_str()))) << text;
        });
        for (long long number = -70000; number < 70000; number += 7) {
            const std::string text = "\t" + std::to_string(number) + "e";
            ASSERT_EQ(languages.contains(one, text), range.contains(number)) << text;
        }
    }
}

TEST(LanguageTest, DecimalsHaveNoZerosBeforeThem)
{
    Languages languages;
    for (const auto& [low, high] : std::vector<std::pair<long long, long long>>{{0, 0},
                                                                                {0, 9},
                                                                                {0, 255},
                                                                                {1, 65535},
                                                                                {5, 7},
                                                                                {8, 1234},
                                                                                {99, 100},
                                                                                {1000, 1000},
                                                                                {600, 7200},
                                                                                {0, Intervals::kHighest},
                                                                                {17, Intervals::kHighest},
                                                                                {100, Intervals::kHighest}}) {
        const Language one = languages.decimals(low, high);
        for (long long number = 0; number < 70000; ++number) {
            ASSERT_EQ(languages.contains(one, std::to_string(number)), low <= number && number <= high)
                << number;
        }
        EXPECT_FALSE(languages.contains(one, "0" + std::to_string(low)));
        EXPECT_FALSE(languages.contains(one, ""));
    }
}

TEST(LanguageTest, LeapYears)
{
    Languages languages;
    const Language leap_years = languages.leap_years();
    const auto look = [&](const std::string& text) {
        const int year = std::atoi(text.c_str());
        const bool is_leap_year = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
        ASSERT_EQ(languages.contains(leap_years, text), is_leap_year) << text;
    };
    for_each_text(" -+0124x", 5, look);
    for (int year = -2500; year < 12000; ++year) {
        for (const char* before : {"", "0", "\n"}) look(before + std::to_string(year));
        look(std::to_string(year) + "-02");
    }
}

// part_of is an independent implementation of a cut.
std::string part_of(const std::string& text, const Cut& cut)
{
    const std::size_t first = text.find(cut.separator);
    const std::size_t last = text.rfind(cut.separator);
    const std::size_t size = cut.separator.size();
    const bool is_missing = first == std::string::npos;
    switch (cut.kind) {
        case Kind::kBeforeFirst:
            return text.substr(0, first);
        case Kind::kBeforeLast:
            return text.substr(0, last);
        case Kind::kAfterFirst:
            return is_missing ? "" : text.substr(first + size);
        case Kind::kAfterLast:
            return is_missing ? text : text.substr(last + size);
        case Kind::kThroughLast:
            return is_missing ? "" : text.substr(0, last + size);
        default:
            return text.substr(std::min(cut.offset, text.size()), cut.count);
    }
}

TEST(LanguageTest, CutsJudgeParts)
{
    Languages languages;
    for (const Cut& cut : cuts()) {
        for (const Language inner : inner_languages(languages)) {
            const std::optional<Language> one = languages.within(cut, inner);
            ASSERT_TRUE(one);
            for_each_text("1a@ ", 5, [&](const std::string& text) {
                ASSERT_EQ(languages.contains(*one, text), languages.contains(inner, part_of(text, cut)))
                    << "\"" << text << "\"";
            });
        }
    }
    EXPECT_FALSE(languages.within({Kind::kBeforeFirst, "aa"}, languages.of_length({0, 1})))
        << "it can occur at two places that share a byte";
}

TEST(LanguageTest, ItemsAreTrimmedAndAllJudged)
{
    Languages languages;
    const auto trimmed = [](std::string item) {
        while (!item.empty() && item.front() == ' ') item.erase(0, 1);
        while (!item.empty() && item.back() == ' ') item.pop_back();
        return item;
    };
    for (const Language inner : inner_languages(languages)) {
        const Language plain = languages.items(',', {}, inner);
        const Language cut = languages.items(',', Set(" "), inner);
        for_each_text("1a, ", 6, [&](const std::string& text) {
            bool is_plain = true;
            bool is_cut = true;
            for (std::size_t begin = 0; begin <= text.size();) {
                const std::size_t end = std::min(text.find(',', begin), text.size());
                const std::string item = text.substr(begin, end - begin);
                is_plain = is_plain && languages.contains(inner, item);
                is_cut = is_cut && languages.contains(inner, trimmed(item));
                begin = end + 1;
            }
            ASSERT_EQ(languages.contains(plain, text), is_plain) << "\"" << text << "\"";
            ASSERT_EQ(languages.contains(cut, text), is_cut) << "\"" << text << "\"";
        });
    }
}

TEST(LanguageTest, ChoicesAndOpposites)
{
    Languages languages;
    const std::vector<Language> all = inner_languages(languages);
    for (const Language a : all) {
        for (const Language b : all) {
            const Language both = languages.both({a, b});
            const Language either = languages.either({a, b});
            const Language neither = languages.negated(either);
            for_each_text("1a@A", 4, [&](const std::string& text) {
                const bool is_in_a = languages.contains(a, text);
                const bool is_in_b = languages.contains(b, text);
                ASSERT_EQ(languages.contains(both, text), is_in_a && is_in_b) << text;
                ASSERT_EQ(languages.contains(either, text), is_in_a || is_in_b) << text;
                ASSERT_EQ(languages.contains(neither, text), !is_in_a && !is_in_b) << text;
            });
            EXPECT_TRUE(rules::includes(languages, either, both));
            EXPECT_TRUE(rules::is_empty(languages, languages.both({both, neither})));
        }
    }
}

TEST(LanguageTest, ShapesThatAMatchWouldJudgeOtherwise)
{
    Languages languages;
    const rules::Run digits{rules::kDigits, 1, 3};
    EXPECT_FALSE(languages.of_shape({{digits, {Set("1"), 1, 1}}})) << "the digits take the 1";
    EXPECT_FALSE(languages.of_shape({{digits, {Set("-"), 0, 1}, {Set("1"), 1, 1}}}));
    EXPECT_TRUE(languages.of_shape({{digits, {Set("-"), 1, 1}, {Set("1"), 1, 1}}}));
}

}  // namespace

}  // namespace ostrel::tests
