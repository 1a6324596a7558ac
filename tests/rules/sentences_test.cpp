// Sentences test: what is said for each id, in each of its forms, is what a reader expects.

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "rules/sentences.h"
#include "rules/sets.h"
#include "tests/rules/said.h"

namespace ostrel::rules {

namespace {

TEST(SentencesTest, AreAsExpected)
{
    for (const Expectation& said : all_said())
        EXPECT_EQ(said.sentence, sentence(said.reason)) << said.reason.id;
}

// is_one tells whether the singular stands for what was found or is allowed.
bool is_of_one(const Datum& datum)
{
    if (const auto* number = std::get_if<long long>(&datum)) return *number == 1;
    if (const auto* texts = std::get_if<std::vector<std::string>>(&datum)) return texts->size() == 1;
    if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) return numbers->size() == 1;
    const auto* set = std::get_if<Set>(&datum);
    return set == nullptr || set->size() == 1;
}

// forms_of names those in which a sentence is said of a reason: "found one", "read".
std::set<std::string> forms_of(std::string_view text, const Reason& said)
{
    std::set<std::string> forms = {"said"};
    const auto add = [&](std::string_view name, const Datum& datum) {
        if (text.find("{" + std::string(name) + ":") == std::string_view::npos) return;
        forms.insert(std::string(name) + (is_of_one(datum) ? " one" : " many"));
    };
    add("found", said.found);
    add("allowed", said.allowed);
    if (text.find("{read}") != std::string_view::npos) forms.insert(said.read_as ? "read" : "not read");
    return forms;
}

std::set<std::string> all_forms_of(std::string_view text)
{
    Reason reason;
    reason.found = reason.allowed = 2;
    std::set<std::string> forms = forms_of(text, reason);
    reason.found = reason.allowed = 1;
    reason.read_as = 1;
    forms.merge(forms_of(text, reason));
    return forms;
}

TEST(SentencesTest, AreExpectedInEveryForm)
{
    for (const Sentence& known : sentences()) {
        std::set<std::string> shown;
        for (const Expectation& said : all_said()) {
            if (said.reason.id == known.id) shown.merge(forms_of(known.text, said.reason));
        }
        EXPECT_EQ(all_forms_of(known.text), shown) << known.id;
    }
}

TEST(SentencesTest, HaveNoOtherFields)
{
    const std::regex field(
        "\\{(found|allowed)(:[^{}|:]*\\|[^{}|:]*)?\\}|\\{(byte|form|item|limit|position|range|read|read_as)"
        "\\}");
    for (const Sentence& known : sentences()) {
        const std::string left = std::regex_replace(std::string(known.text), field, "");
        EXPECT_EQ(std::string::npos, left.find_first_of("{}|")) << known.id << ": " << left;
    }
}

TEST(SetsTest, AreNamed)
{
    EXPECT_EQ("printable Latin-1 characters", in_words(kLatin1));
    EXPECT_EQ("printable ASCII characters", in_words(kPrintable));
    EXPECT_EQ("letters", in_words(kLetters));
    EXPECT_EQ("upper-case letters", in_words(kUpper));
    EXPECT_EQ("lower-case letters", in_words(kLower));
    EXPECT_EQ("hexadecimal digits", in_words(kHex));
    EXPECT_EQ("upper-case letters, digits and a to f", in_words(kUpper | kHex));
    EXPECT_EQ("digits", in_words(kDigits));
    EXPECT_EQ("digits and A to F", in_words(kDigits | Set::range('A', 'F')));
    EXPECT_EQ("digits and a to f", in_words(kDigits | Set::range('a', 'f')));
    EXPECT_EQ("letters and blanks", in_words(kLetters | kBlank));
    EXPECT_EQ("0 to 3", in_words(Set("0123")));
    EXPECT_EQ("0 1 2", in_words(Set("012")));
    EXPECT_EQ("! \" # $", in_words(Set("!\"#$")));
    EXPECT_EQ("a blank", in_words(kBlank));
    EXPECT_EQ("a quotation mark", in_words(Set("\"")));
}

TEST(QuotedTest, CanBePrinted)
{
    EXPECT_EQ("\"a b~\"", rules::quoted("a b~"));
    EXPECT_EQ("\"\\\"\\\\\"", rules::quoted("\"\\"));
    EXPECT_EQ("\"\\x1F\\x7F\\xA0\"", rules::quoted("\x1F\x7F\xA0"));
    EXPECT_EQ("\"" + std::string(64, 'a') + "\"", rules::quoted(std::string(64, 'a')));
    EXPECT_EQ("\"" + std::string(64, 'a') + "...\"", rules::quoted(std::string(65, 'a')));
}

}  // namespace

}  // namespace ostrel::rules
