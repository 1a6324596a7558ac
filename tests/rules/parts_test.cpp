// Tests that a reason about a part of an argument names the part and the offset at which it begins.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

TEST(PartsTest, AreTheSubject)
{
    const Expression port = called("the port", after_first(it, ":"));
    const auto said = [&](const Condition& condition) {
        return told(answer_of({refuse(-1, condition)}, {"a:7x"}));
    };
    EXPECT_EQ("the port is read as 7; at most 6 is allowed", said(above(port, 6)));
    EXPECT_EQ("the port has 2 bytes; at most 1 is allowed", said(longer_than(port, 1)));
    EXPECT_EQ("in the port, byte 4 is \"x\"; digits are allowed", said(outside(port, kDigits)));
    EXPECT_EQ("the port does not contain \"y\"", said(not_(contains(port, literal("y")))));
    EXPECT_EQ("is read as 7; at most 6 is allowed", said(above(after_first(it, ":"), 6)));
}

TEST(PartsTest, BeginWhereTheOffsetIs)
{
    const Answer answer =
        answer_of({refuse(-1, longer_than(called("the port", after_first(it, ":")), 1))}, {"a:7x"});
    EXPECT_EQ("the port", answer.reason.part);
    EXPECT_EQ(2, answer.reason.offset);
    EXPECT_EQ(std::nullopt, answer_of({refuse(-1, longer_than(1))}, {"a:7x"}).reason.offset);
}

TEST(PartsTest, AreWhatIsJudged)
{
    const auto judged = [](const Expression& piece) {
        const Answer answer = answer_of({refuse(-1, not_empty(piece))}, {"abcdef"});
        const Span span = answer.reason.judged.value_or(Span{9, 9});
        return std::pair(span.begin, span.size);
    };
    EXPECT_EQ(std::pair(0UL, 6UL), judged(it));
    EXPECT_EQ(std::pair(1UL, 5UL), judged(slice(it, 1)));
    EXPECT_EQ(std::pair(3UL, 2UL), judged(slice(slice(it, 1), 2, 2)));
}

TEST(PartsTest, OfBlocksAreJudgedFromTheirBeginning)
{
    std::vector<ArgumentWords> arguments;
    arguments.push_back(blocks("keys", "some keys", 2, 8));
    const std::vector<Step> steps = {for_each(list_of("keys", ','), {refuse(1, longer_than(2))})};
    const Check check = registered(rules::check("a_check", std::move(arguments), steps));
    const std::vector<Value> values = {std::vector<std::string>{"ab", "abc"}};
    const Span judged = evaluate(check, values, {}).reason.judged.value_or(Span{9, 9});
    EXPECT_EQ(0U, judged.begin);
    EXPECT_EQ(3U, judged.size);
}

TEST(PartsTest, AreCalledTheSameInWhatIsRemembered)
{
    const std::vector<Step> steps = {remember("port", called("the port", after_first(it, ":"))),
                                     refuse(-1, refused_by("TcmValidatePort", {"port"}))};
    EXPECT_EQ("the port is 0; at least 1 is needed", told(answer_of(steps, {"a:0"})));
}

TEST(PartsTest, LoseTheirNameWhenTheyAreCut)
{
    const Expression port = called("the port", after_first(it, ":"));
    const auto said = [&](const Expression& piece) {
        return told(answer_of({refuse(-1, above(piece, 6))}, {"a:78"}));
    };
    EXPECT_EQ("the port is 78; at most 6 is allowed", said(slice(port, 0)));
    EXPECT_EQ("the port is 78; at most 6 is allowed", said(slice(port, 0, 2)));
    EXPECT_EQ("is 8; at most 6 is allowed", said(slice(port, 1)));
    EXPECT_EQ("is 7; at most 6 is allowed", said(slice(port, 0, 1)));
    EXPECT_EQ("its end is 8; at most 6 is allowed", said(called("its end", slice(port, 1))));
}

TEST(PartsTest, OfTheSameNameAreNumbered)
{
    const auto list = [](std::string_view called, char separator) {
        return for_each(list_of(it, separator, {}, called), {refuse(-1, above("item", 6))});
    };
    const Answer part = answer_of({list("number", '.')}, {"1.2.7"});
    EXPECT_EQ("number 3 is 7; at most 6 is allowed", told(part));
    EXPECT_EQ(std::nullopt, part.reason.item);
    EXPECT_EQ(4, part.reason.offset);
    const Answer item = answer_of({list("", '.')}, {"1.2.7"});
    EXPECT_EQ("is 7; at most 6 is allowed", told(item));
    EXPECT_EQ(2, item.reason.item);
}

TEST(PartsTest, MayBeItems)
{
    const std::vector<Step> steps = {
        for_each(list_of(it, ','), {refuse(-1, empty(called("the entry", "item")))})};
    EXPECT_EQ("the entry is empty", told(answer_of(steps, {"a,,b"})));
}

// An address in a list is an item, and its octets are parts of the item.
TEST(PartsTest, OfItems)
{
    const Answer answer = answer_of("TcmValidateofferDNS", {"1.1.1.1, 1..10.1"});
    EXPECT_EQ("octet 2 is empty", told(answer));
    EXPECT_EQ(1, answer.reason.item);
    EXPECT_EQ(11, answer.reason.offset);
}

TEST(ShapesTest, MayEndWhereTheyAreAtFault)
{
    const Shape brief = {some(kDigits, 2)};
    const Shape signed_so = {some(kDigits, 2), one("+-")};
    const auto said = [](const std::vector<Shape>& shapes, const char* value) {
        return told(answer_of({refuse(-1, lacks_shape(shapes))}, {value}));
    };
    EXPECT_EQ("byte 3 is \"Z\"; + - or the end is expected there", said({brief, signed_so}, "12Z"));
    EXPECT_EQ("byte 3 is \"Z\"; + - or the end is expected there", said({signed_so, brief}, "12Z"));
    EXPECT_EQ("byte 3 is \"Z\"; + - are expected there", said({signed_so}, "12Z"));
    EXPECT_EQ("continues at byte 3, where it must end", said({brief}, "12Z"));
    EXPECT_EQ("byte 2 is \"Z\"; digits are expected there", said({brief, signed_so}, "1Z"));
    EXPECT_EQ("byte 3 is \"Z\"; digits or the end is expected there", said({{some(kDigits, 1, 3)}}, "12Z"));
    EXPECT_EQ("ends before byte 2, where digits are expected", said({brief, signed_so}, "1"));
    const Shape marked = {some(kDigits, 1, 2), some(kUpper, 2)};
    EXPECT_EQ("ends before byte 2, where upper-case letters and digits are expected", said({marked}, "1"));
    EXPECT_EQ("ends before byte 3, where upper-case letters are expected", said({marked}, "1A"));
}

}  // namespace

}  // namespace ostrel::rules
