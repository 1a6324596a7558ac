// Tests the fault that each condition reports, plain and negated, and the position of the fault.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

struct Trial {
    Condition condition;
    std::vector<Value> values;
    std::string_view id;
    std::optional<std::size_t> offset = std::nullopt;
};

const Table& pairs()
{
    static const Table kPairs = {{"one", "other"}, {{"a", "b"}}};
    return kPairs;
}

const Grammar& digits()
{
    static const Grammar kDigitsOnly = {
        "a number",
        {"not_in_set"},
        {"1"},
        {"x"},
        [](std::string_view text, const Build& /*build*/) -> std::optional<GrammarFault> {
            const std::size_t offset = kDigits.find_outside(text);
            if (offset == std::string_view::npos) return std::nullopt;
            return GrammarFault{"not_in_set", offset, std::string(text.substr(offset, 1)), "digits"};
        }};
    return kDigitsOnly;
}

std::vector<Trial> of_texts()
{
    return {
        {null("two"), {"", nullptr}, "null"},
        {not_(null("one")), {""}, "not_null"},
        {empty(), {""}, "empty"},
        {not_empty(), {"a"}, "not_empty"},
        {shorter_than(2), {"a"}, "too_short"},
        {not_(shorter_than(2)), {"ab"}, "too_long"},
        {longer_than(1), {"ab"}, "too_long"},
        {not_(longer_than(1)), {"a"}, "too_short"},
        {length_is({1, 2}), {"ab"}, "forbidden_length"},
        {length_not({1, 2}), {"abc"}, "wrong_length"},
        {outside(kDigits), {"12x"}, "not_in_set", 2},
        {not_(outside(kDigits)), {"12"}, "only_of_set"},
        {outside("one", "two"), {"abc", "ab"}, "not_in_set", 2},
        {one_of({"a", "b"}), {"b"}, "forbidden_keyword"},
        {none_of({"a", "b"}), {"B"}, "not_a_keyword"},
        {ignoring_case(one_of({"a", "b"})), {"B"}, "forbidden_keyword"},
        {begins_with({"ab"}), {"abc"}, "forbidden_prefix", 0},
        {not_(begins_with({"abx", "b"})), {"abc"}, "wrong_prefix", 2},
        {ends_with("one", literal("bc")), {"abc"}, "forbidden_suffix"},
        {not_(ends_with("one", literal("abc"))), {"abc"}, "wrong_suffix"},
        {contains("one", literal("bc")), {"abc"}, "contains", 1},
        {not_(contains("one", literal("x"))), {"abc"}, "lacks"},
        {contains("one", "two"), {"abc", "b"}, "already_listed"},
        {not_(contains("one", "two")), {"abc", "x"}, "not_listed"},
        {equal("one", literal("a")), {"a"}, "equal"},
        {not_equal("one", literal("a")), {"b"}, "not_equal"},
    };
}

std::vector<Trial> of_numbers()
{
    return {
        {below(5), {"4"}, "number_too_low", 0},
        {not_(below(5)), {"5"}, "number_too_high", 0},
        {above(5), {"6"}, "number_too_high", 0},
        {not_(above(5)), {"5"}, "number_too_low", 0},
        {among(it, {1, 2}), {"2"}, "number_forbidden", 0},
        {not_among(it, {1, 2}), {"3"}, "number_not_allowed", 0},
        {between(it, 1, 3), {"2"}, "number_in_range", 0},
        {not_(between(it, 1, 3)), {"4"}, "number_out_of_range", 0},
        {multiple(it, 3), {"6"}, "a_multiple", 0},
        {not_(multiple(it, 3)), {"7"}, "not_a_multiple", 0},
        {equal("one", 7), {"7"}, "equal", 0},
        {not_equal("one", 7), {"8"}, "not_equal", 0},
        {above(5), {" 99999999999"}, "number_beyond_int", 1},
        {because("a_name", above(5)), {"6"}, "a_name", 0},
        {because("a_name", below(5)), {"4294967295"}, "number_beyond_int", 0},
    };
}

std::vector<Trial> of_forms_and_checks()
{
    const Shape pair = {some(kDigits, 2), one("-"), some(kDigits, 1, 2)};
    return {
        {has_shape({pair}), {"12-3"}, "forbidden_shape"},
        {lacks_shape({pair}), {"12+3"}, "wrong_shape", 2},
        {lacks_shape({pair}), {"12-"}, "incomplete", 3},
        {lacks_shape({pair}), {"12-3x"}, "wrong_shape_or_end", 4},
        {lacks_shape({pair}), {"12-345"}, "too_much", 5},
        {fails(digits()), {"12x"}, "not_in_set", 2},
        {not_(fails(digits())), {"12"}, "forbidden_form"},
        {in_table(pairs(), {{0, Match::How::kEqual, "one"}}), {"a"}, "in_table"},
        {not_(in_table(pairs(), {{0, Match::How::kEqual, "one"}})), {"b"}, "not_in_table"},
        {refused_by("TcmValidatePort"), {"0"}, "number_too_low", 0},
        {not_(refused_by("TcmValidatePort")), {"80"}, "accepted"},
        {all_of({not_empty(), longer_than(1)}), {"ab"}, "too_long"},
        {any_of({longer_than(2), not_empty()}), {"ab"}, "not_empty"},
        {not_(all_of({not_empty(), longer_than(1)})), {"a"}, "too_short"},
    };
}

TEST(IdsTest, EachCondition)
{
    for (const auto& trials : {of_texts(), of_numbers(), of_forms_and_checks()}) {
        for (const Trial& trial : trials) {
            const Answer answer = answer_of({refuse(-1, trial.condition)}, trial.values);
            EXPECT_EQ(trial.id, answer.reason.id);
            EXPECT_EQ(trial.offset, answer.reason.offset) << trial.id;
            const Answer reversed = answer_of({refuse(-1, not_(trial.condition))}, trial.values);
            EXPECT_FALSE(reversed.is_refusal) << trial.id;
        }
    }
}

TEST(IdsTest, TheLastItem)
{
    const auto list = [](const Condition& condition) {
        return answer_of({for_each(list_of(it, ','), {refuse(-1, condition)})}, {"a,b"}).reason;
    };
    EXPECT_EQ("last_item", list(last_item()).id);
    EXPECT_EQ(1, list(last_item()).item);
    EXPECT_EQ("empty", list(all_of({not_(last_item()), empty(slice("item", 1))})).id);
}

}  // namespace

}  // namespace ostrel::rules
