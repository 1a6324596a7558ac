#include "read/words.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <span>
#include <stdexcept>

#include "read/cases.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;
using Texts = std::vector<std::string>;

Texts split(std::string_view line)
{
    Words words;
    words.split(line);
    return {words.all().begin(), words.all().end()};
}

std::string problem_of(const std::function<void()>& action)
{
    try {
        action();
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return "none";
}

TEST(Words, StandBetweenBlanks)
{
    EXPECT_EQ((Texts{"a", "b", "c"}), split("  a\tb  c "));
    EXPECT_EQ(Texts{}, split(""));
    EXPECT_EQ(Texts{}, split(" \t "));
}

TEST(Words, QuotationMarksKeepBlanksAndMakeEmptyWords)
{
    EXPECT_EQ((Texts{"a b", "c\td", "", ""}), split(R"('a b' "c	d" '' "")"));
    EXPECT_EQ((Texts{"abcd ef"}), split(R"(a'b'"c"d' 'ef)"));
    EXPECT_EQ((Texts{"it's", "\"x\""}), split(R"("it's" '"x"')"));
}

TEST(Words, EscapesAreReadOutsideSingleQuotationMarks)
{
    EXPECT_EQ((Texts{"\xE9", "\xE9 ", "\\xE9"}), split(R"(\xE9 "\xe9 " '\xE9')"));
    EXPECT_EQ((Texts{"\n\r\t\\ \"'#"}), split(R"(\n\r\t\\\ \"\'\#)"));
    EXPECT_EQ((Texts{"\ng"}), split(R"(\x0Ag)"));
}

TEST(Words, CommentBeginsWhereAWordCould)
{
    EXPECT_EQ((Texts{"a#b", "#"}), split(R"(a#b '#' # c)"));
    EXPECT_EQ(Texts{}, split("# a"));
    EXPECT_EQ((Texts{"a"}), split("a #"));
}

TEST(Words, FaultsAreNamed)
{
    EXPECT_EQ("no closing \"", problem_of([] { split("a \"b"); }));
    EXPECT_EQ("no closing '", problem_of([] { split("'"); }));
    EXPECT_EQ("no closing \"", problem_of([] { split("\"\\\""); }));
    EXPECT_EQ("a backslash at the end must be written as \\\\", problem_of([] { split("a\\"); }));
    EXPECT_EQ("\\x needs two hexadecimal digits", problem_of([] { split("\\x1"); }));
    EXPECT_EQ("\\x needs two hexadecimal digits", problem_of([] { split("\\xg1"); }));
    EXPECT_EQ("\\q is not an escape; write a backslash as \\\\", problem_of([] { split("\\q"); }));
}

TEST(Words, EveryByteShownIsReadBackAsItself)
{
    for (int byte = 0; byte < 256; ++byte) {
        for (const std::string& text :
             {std::string(1, static_cast<char>(byte)), "a" + std::string(1, static_cast<char>(byte)) + "1"}) {
            std::string shown;
            append_word(shown, text, 100);
            EXPECT_EQ(Texts{text}, split(shown)) << shown;
            for (const char c : shown) EXPECT_TRUE(c >= ' ' && c <= '~') << shown;
        }
    }
}

TEST(Words, ALongTextIsShownWithItsLength)
{
    std::string shown;
    append_word(shown, "abcdef", 3);
    EXPECT_EQ("abc... (6 bytes)", shown);
}

Function described(std::span<const catalogue::Argument> arguments)
{
    Function function;
    function.name = "f";
    function.arguments = arguments;
    return function;
}

std::vector<Value> values_of(const Function& function, const Texts& words)
{
    std::vector<Value> values;
    read_values(function, words, values);
    return values;
}

std::vector<Value> value_of(Kind kind, const std::string& word)
{
    const catalogue::Argument argument = {"a", kind};
    return values_of(described({&argument, 1}), {word});
}

TEST(Values, NullHasAWordAndItsTextAnother)
{
    EXPECT_EQ((std::vector<Value>{nullptr}), value_of(Kind::kText, "@null"));
    EXPECT_EQ((std::vector<Value>{"@null"}), value_of(Kind::kText, "@@null"));
    EXPECT_EQ((std::vector<Value>{"@@null"}), value_of(Kind::kText, "@@@null"));
    for (const std::string text :
         {"null", "NULL", "@NULL", "@nul", "@@nul", "a@null", "@a@null", "@@nulll"}) {
        EXPECT_EQ((std::vector<Value>{text}), value_of(Kind::kText, text));
    }
}

TEST(Values, LikeNullAreShownAsTheyAreGiven)
{
    for (const std::string text : {"@null", "@@null", "null", "@", "", "@@", "a@null", "@nulls"}) {
        std::string shown;
        append_word(shown, text, 100);
        EXPECT_EQ((std::vector<Value>{text}), value_of(Kind::kText, split(shown).front())) << shown;
    }
}

TEST(Values, NumbersAreDecimalOrHexadecimal)
{
    EXPECT_EQ((std::vector<Value>{-12LL}), value_of(Kind::kInteger, "-12"));
    EXPECT_EQ((std::vector<Value>{12LL}), value_of(Kind::kInteger, "+12"));
    EXPECT_EQ((std::vector<Value>{44LL}), value_of(Kind::kUnsigned, "0x2c"));
    EXPECT_EQ((std::vector<Value>{1LL << 62}), value_of(Kind::kInteger, "99999999999999999999999"));
    for (const std::string word : {"", "-", "1 ", " 1", "1x", "0x", "--1", "x"}) {
        EXPECT_EQ("argument a must be a number, but \"" + word + "\" is not one",
                  problem_of([&] { value_of(Kind::kInteger, word); }));
    }
}

TEST(Values, EachBlockIsAWord)
{
    const std::array<catalogue::Argument, 2> arguments = {
        {{.name = "keys", .kind = Kind::kBlocks, .blocks = 2, .block_size = 8}, {"n", Kind::kInteger}}};
    const Function function = described(arguments);
    EXPECT_EQ("f keys_1 keys_2 n:number", usage_of(function));
    EXPECT_EQ((std::vector<Value>{Texts{"a", "@null"}, 1LL}), values_of(function, {"a", "@@null", "1"}));
    EXPECT_EQ((std::vector<Value>{nullptr, 1LL}), values_of(function, {"@null", "1"}));
    EXPECT_EQ("1 value was given; expected: f keys_1 keys_2 n:number",
              problem_of([&] { values_of(function, {"a"}); }));
}

TEST(Values, OutputArgumentsMayBeOmitted)
{
    const std::array<catalogue::Argument, 3> arguments = {
        {{"value", Kind::kText}, {"type", Kind::kIntegerOut}, {"n", Kind::kInteger}}};
    const Function function = described(arguments);
    EXPECT_EQ("f value n:number", usage_of(function));
    EXPECT_EQ((std::vector<Value>{"a", 1LL}), values_of(function, {"a", "1"}));
    EXPECT_EQ((std::vector<Value>{"a", 7LL, 1LL}), values_of(function, {"a", "7", "1"}));
    EXPECT_EQ((std::vector<Value>{"a", nullptr, 1LL}), values_of(function, {"a", "@null", "1"}));
}

TEST(Lines, EndInALineFeedWithOrWithoutACarriageReturn)
{
    const Reading reading;
    Cases cases(reading);
    cases.open(0, FileFormat::kWords, "");
    EXPECT_EQ(20U, cases.next("PARAM_check_port 1\r\nPARAM_check_port 1\r"));
    EXPECT_TRUE(cases.read("PARAM_check_port 1\r\n", 0));
    EXPECT_EQ((std::vector<Value>{"1"}), cases.values());
    EXPECT_EQ(19U, cases.next("PARAM_check_port 1\r"));
    EXPECT_TRUE(cases.read("PARAM_check_port 1\r", 0));
    EXPECT_EQ((std::vector<Value>{"1"}), cases.values());
    EXPECT_TRUE(cases.read("PARAM_check_port 1\\r", 0));
    EXPECT_EQ((std::vector<Value>{"1\r"}), cases.values());
    EXPECT_TRUE(cases.read("{\"check\": \"PARAM_check_port\", \"args\": [\"1\"]}\r\n", 0));
    EXPECT_FALSE(cases.read("\r", 0));
    EXPECT_FALSE(cases.read(" # a\r\n", 0));
    EXPECT_FALSE(cases.read("\n", 0));
}

TEST(Lines, NullIsAWordWithoutQuotationMarks)
{
    const Reading reading;
    Cases cases(reading);
    cases.open(0, FileFormat::kWords, "");
    for (const auto& [word, value] : std::vector<std::pair<std::string, Value>>{{"@null", nullptr},
                                                                                {"\"@null\"", "@null"},
                                                                                {"'@null'", "@null"},
                                                                                {"@\"null\"", "@null"},
                                                                                {"\\@null", "@null"},
                                                                                {"@@null", "@null"},
                                                                                {"\"@@null\"", "@@null"},
                                                                                {"@@@null", "@@null"}}) {
        EXPECT_TRUE(cases.read("PARAM_check_port " + word + "\n", 0));
        EXPECT_EQ(std::vector<Value>{value}, cases.values()) << word;
    }
}

TEST(Lines, OfJsonKeepEveryMember)
{
    Reading reading;
    reading.encoding = Encoding::kLatin1;
    Cases cases(reading);
    cases.open(0, FileFormat::kWords, "");
    EXPECT_TRUE(cases.read(
        R"( {"args": ["\u00e9é\n", 1, -1], "check": "PARAM_check_number", "x": [1, "\""], "id" : 1.0})", 0));
    EXPECT_EQ((std::vector<Value>{"\xE9\xE9\n", 1LL, -1LL}), cases.values());
    ASSERT_EQ(2U, cases.record().members.size());
    EXPECT_EQ(R"([1, "\""])", cases.record().members[0].value);
    EXPECT_EQ("1.0", cases.record().find("id")->value);
    EXPECT_TRUE(cases.read(R"({"check": "PARAM_check_port", "args": [null]})", 0));
    EXPECT_EQ((std::vector<Value>{nullptr}), cases.values());
    EXPECT_EQ("a string contains U+0100, which does not exist in Latin-1",
              problem_of([&] { cases.read(R"({"check": "PARAM_check_port", "args": ["\u0100"]})", 0); }));
}

}  // namespace

}  // namespace ostrel::tool
