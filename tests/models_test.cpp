// Models test: what the models say of every row of vectors/*.ndjson.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <regex>
#include <string>
#include <vector>

#include "fuzz/model/model.h"
#include "tests/support/vectors.h"

namespace ostrel::model {

using catalogue::Argument;
using catalogue::Caller;
using catalogue::Case;
using catalogue::Kind;
using tests::Outcome;

namespace {

// holds_a_long_number tells whether a number may be beyond an int, of which the models say nothing.
bool holds_a_long_number(const Case& given)
{
    static const std::regex kLongNumber("[0-9]{10}");
    return std::ranges::any_of(given.values, [](const Value& value) {
        const auto* text = std::get_if<std::string>(&value);
        return text != nullptr && std::regex_search(text->substr(0, 300), kLongNumber);
    });
}

Outcome outcome_of(const Answer& answer)
{
    return {answer.code, answer.out, answer.err, answer.flushed, answer.after};
}

TEST(ModelsTest, AgreeWithEveryVector)
{
    const std::vector<tests::Row> rows = tests::read_cases();
    ASSERT_FALSE(rows.empty());
    Caller caller;
    for (const tests::Row& row : rows) {
        SCOPED_TRACE(row.text.substr(0, 300));
        const auto model = models().find(row.given.function->name);
        ASSERT_NE(models().end(), model);
        const Answer answer = model->second(catalogue::completed(*row.given.function, row.given.values));
        EXPECT_TRUE(!answer.undefined || holds_a_long_number(row.given));
        if (answer.undefined) continue;
        caller.load(*row.given.function, row.given.values);
        EXPECT_EQ(tests::expected_outcome(row, caller.written()), outcome_of(answer));
    }
}

TEST(ModelsTest, HoldEveryFunction)
{
    for (const auto& function : catalogue::functions()) {
        EXPECT_TRUE(models().contains(function.name)) << function.name;
    }
}

TEST(ModelsTest, NameNoFunctionThatIsNotExported)
{
    for (const auto& [name, model] : models()) EXPECT_NE(nullptr, catalogue::find(name)) << name;
}

}  // namespace

}  // namespace ostrel::model
