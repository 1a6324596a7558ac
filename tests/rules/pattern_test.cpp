// Compares the matches of regular expressions with the languages from which the expressions were generated.

#include "rules/language/pattern.h"

#include <gtest/gtest.h>

#include <regex>

#include "tests/rules/languages.h"

namespace ostrel::tests {

using rules::Cut;
using rules::Language;
using rules::Languages;
using rules::Set;

namespace {

TEST(PatternTest, MatchesTheSameTexts)
{
    Languages languages;
    std::vector<Language> all = inner_languages(languages);
    const std::vector<Language> inner = all;
    for (const Language one : inner) {
        all.push_back(languages.items(',', {}, one));
        all.push_back(languages.items(',', Set(" "), languages.both({one, languages.repeated(Set("1a@"))})));
        for (const Cut& cut : cuts()) all.push_back(languages.within(cut, one).value());
    }
    all.push_back(languages.both({languages.items('@', {}, inner[4]), languages.repeated(Set("1@"))}));
    all.push_back(languages.both({languages.of_number({0, 5}), languages.repeated(Set("@"))}));
    std::size_t written = 0;
    for (const Language one : all) {
        const std::optional<std::string> pattern = rules::pattern_of(languages, one);
        if (!pattern) continue;
        ++written;
        const std::regex regex(*pattern);
        for_each_text("1a@, \n", 4, [&](const std::string& text) {
            ASSERT_EQ(std::regex_search(text, regex), languages.contains(one, text))
                << "\"" << text << "\" " << *pattern;
        });
    }
    EXPECT_GT(written * 10, all.size() * 7) << "most have a pattern";
}

TEST(PatternTest, WhatCannotBeSaidIsNotSaid)
{
    Languages languages;
    const Language blank = languages.negated(languages.text("a a"));
    EXPECT_FALSE(rules::pattern_of(languages, languages.items(',', Set(" "), blank)))
        << "an item that may hold blanks has no end that can be seen";
}

}  // namespace

}  // namespace ostrel::tests
