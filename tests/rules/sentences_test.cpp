// Tests that the sentence for each id, in each of its forms, is the one that a reader expects.

#include <gtest/gtest.h>

#include <optional>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "rules/rules.h"
#include "rules/sentences.h"
#include "rules/sets.h"
#include "rules/words.h"
#include "tests/rules/said.h"

namespace ostrel::rules {

namespace {

TEST(SentencesTest, AreAsExpected)
{
    for (const Expectation& said : all_said())
        EXPECT_EQ(said.sentence, sentence(said.reason)) << said.reason.id;
}

// is_of_one returns whether the found or allowed value takes the singular.
bool is_of_one(const Datum& datum)
{
    if (const auto* number = std::get_if<long long>(&datum)) return *number == 1;
    if (const auto* texts = std::get_if<std::vector<std::string_view>>(&datum)) return texts->size() == 1;
    if (const auto* numbers = std::get_if<std::vector<long long>>(&datum)) return numbers->size() == 1;
    const auto* set = std::get_if<Set>(&datum);
    return set == nullptr || set->size() == 1;
}

// forms_of returns the names of the forms that a sentence takes for a reason, such as "found one" or "read".
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
        "\\{(found|allowed)(:[^{}|:]*\\|[^{}|:]*)?\\}|\\{(byte|form|limit|position|range|read|read_as)"
        "\\}");
    for (const Sentence& known : sentences()) {
        const std::string left = std::regex_replace(std::string(known.text), field, "");
        EXPECT_EQ(std::string::npos, left.find_first_of("{}|")) << known.id << ": " << left;
    }
}

Reason of(std::string_view id, std::size_t argument = 0)
{
    Reason reason;
    reason.id = id;
    reason.argument = argument;
    reason.name = argument == 0 ? "one" : "two";
    return reason;
}

// The found value may be hidden, and a reason without a place or a limit still has a sentence.
TEST(SentencesTest, SayWhatIsNotShown)
{
    EXPECT_EQ("continues at byte , where it must end", sentence(of("too_much")));
    Reason reason = of("not_in_set");
    reason.allowed = kDigits;
    EXPECT_EQ("byte  is a byte that is not shown; digits are allowed", sentence(reason));
    reason.found = std::string();
    EXPECT_EQ("byte  is a byte that is not shown; digits are allowed", sentence(reason));
    EXPECT_EQ("is a value that is not shown; the allowed range is ", sentence(of("number_out_of_range")));
    EXPECT_EQ(
        "contains the number a value that is not shown, which does not fit in an int; this gateway reads it "
        "as ",
        sentence(of("number_beyond_int")));
}

Check check_of(std::vector<ArgumentWords> arguments)
{
    return registered(check("a_check", std::move(arguments), {}));
}

Check of_one()
{
    std::vector<ArgumentWords> arguments;
    arguments.push_back(text("one", "a text"));
    arguments.push_back(integer_out("type", "the type"));
    arguments.push_back(buffer("offset", "the offset").output());
    return check_of(std::move(arguments));
}

Check of_two()
{
    std::vector<ArgumentWords> arguments;
    arguments.push_back(text("one", "a text"));
    arguments.push_back(text("two", "a password").secret());
    return check_of(std::move(arguments));
}

Reason of_item(Reason reason, std::string text)
{
    reason.item = 1;
    reason.item_text = std::move(text);
    return reason;
}

// An argument is named if the user passes more than one. Output arguments do not count.
TEST(FullSentencesTest, NameWhatTheySpeakOf)
{
    EXPECT_EQ("is empty", full_sentence(of("empty"), of_one()));
    EXPECT_EQ("one is empty", full_sentence(of("empty"), of_two()));
    EXPECT_EQ("item 2 is empty", full_sentence(of_item(of("empty"), ""), of_one()));
    EXPECT_EQ("item 2 (\"a\") is empty", full_sentence(of_item(of("empty"), "a"), of_one()));
    EXPECT_EQ("item 2 (\"a\") of two is empty", full_sentence(of_item(of("empty", 1), "a"), of_two()));
    Reason of_none = of("empty");
    of_none.argument.reset();
    EXPECT_EQ("is empty", full_sentence(of_none, of_two()));
    EXPECT_EQ("", full_sentence(of(""), of_two()));
}

TEST(FullSentencesTest, HaveAColonBeforeASubject)
{
    EXPECT_EQ("two: the values are too long to work out a reason",
              full_sentence(of("too_much_work", 1), of_two()));
    Reason of_part = of("empty");
    of_part.part = "the host";
    EXPECT_EQ("one: the host is empty", full_sentence(of_part, of_two()));
}

TEST(SecretsTest, AreTakenOut)
{
    Reason reason = of_item(of("not_equal", 1), "ab");
    reason.found = std::string("ab");
    const Reason without = without_secret(reason, of_two());
    EXPECT_EQ(Datum(), without.found);
    EXPECT_EQ("", without.item_text);
    reason.found = std::string("a");
    EXPECT_EQ(Datum(std::string("a")), without_secret(reason, of_two()).found);
    reason.found = 7;
    EXPECT_EQ(Datum(7), without_secret(reason, of_two()).found);
    reason.found = std::string("ab");
    for (const std::optional<std::size_t> argument :
         {std::optional<std::size_t>(0), std::optional<std::size_t>()}) {
        reason.argument = argument;
        EXPECT_EQ(Datum(std::string("ab")), without_secret(reason, of_two()).found);
        EXPECT_EQ("ab", without_secret(reason, of_two()).item_text);
    }
}

TEST(SecretsTest, LeaveNoTrace)
{
    const auto left_of = [](Reason reason, const Datum& found) {
        reason.found = found;
        return without_trace_of_secret(reason, of_two()).found;
    };
    EXPECT_EQ(Datum(7), left_of(of("too_long", 1), 7));
    EXPECT_EQ(Datum(), left_of(of("too_long", 1), std::string("a")));
    EXPECT_EQ(Datum(), left_of(of("number_too_high", 1), 7));
    Reason read = of("not_equal", 1);
    read.read_as = 7;
    EXPECT_EQ(Datum(), left_of(read, 7));
    EXPECT_EQ(std::nullopt, without_trace_of_secret(read, of_two()).read_as);
    EXPECT_EQ("", without_trace_of_secret(of_item(of("empty", 1), "a"), of_two()).item_text);
    EXPECT_EQ(Datum(std::string("a")), left_of(of("not_equal", 0), std::string("a")));
    Reason of_none = of("not_equal", 1);
    of_none.argument.reset();
    EXPECT_EQ(Datum(std::string("a")), left_of(of_none, std::string("a")));
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
    EXPECT_EQ("letters and spaces", in_words(kLetters | kBlank));
    EXPECT_EQ("0 to 3", in_words(Set("0123")));
    EXPECT_EQ("0 1 2", in_words(Set("012")));
    EXPECT_EQ("! \" # $", in_words(Set("!\"#$")));
    EXPECT_EQ("a space", in_words(kBlank));
    EXPECT_EQ("a quotation mark", in_words(Set("\"")));
    EXPECT_EQ("spaces and \\x1D \\x1E \\x1F", in_words(Set("\x1D\x1E\x1F ")));
    EXPECT_EQ("! ~", in_words(Set("!~")));
    EXPECT_EQ("\"~\"", byte_in_words('~'));
    EXPECT_EQ("\\x7F", byte_in_words('\x7F'));
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
