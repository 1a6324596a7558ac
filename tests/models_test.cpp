// Models test: what the models say of every row of vectors/*.ndjson.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "catalogue/case.h"
#include "fuzz/model/model.h"

namespace ostrel::model {

using catalogue::Argument;
using catalogue::Case;
using catalogue::Kind;
using nlohmann::json;

namespace {

// kUnwritten is what a number that is only written holds when none is given.
const Value kUnwritten = static_cast<long long>(std::numeric_limits<int>::min());

bool may_be_written(const Argument& argument)
{
    return argument.kind == Kind::kBuffer || argument.kind == Kind::kBlocks ||
           argument.kind == Kind::kIntegerOut;
}

// arguments_of adds what a row leaves out: arguments that are only written.
std::vector<Value> arguments_of(const Case& given)
{
    const auto& arguments = given.function->arguments;
    if (given.values.size() == arguments.size()) return given.values;
    std::vector<Value> result;
    auto next = given.values.begin();
    for (const Argument& argument : arguments) {
        if (!argument.output_only) {
            result.push_back(*next++);
        } else if (argument.kind == Kind::kIntegerOut) {
            result.push_back(kUnwritten);
        } else {
            result.emplace_back(std::string());
        }
    }
    return result;
}

std::vector<Value> expected_after(const json& row, const Case& given, const std::vector<Value>& arguments)
{
    std::vector<Value> after;
    if (row.contains("after")) {
        for (const json& value : row["after"]) after.push_back(catalogue::value_from_json(value));
        return after;
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (!may_be_written(given.function->arguments[i])) continue;
        after.push_back(arguments[i] == kUnwritten ? Value(nullptr) : arguments[i]);
    }
    return after;
}

std::string expected_text(const json& row, const char* member)
{
    return row.contains(member) ? catalogue::text_from_json(row[member]) : std::string();
}

void compare(const json& row)
{
    const auto model = models().find(row.at("check").get<std::string>());
    ASSERT_NE(model, models().end());
    const Case given = catalogue::case_from_json(row);
    const std::vector<Value> arguments = arguments_of(given);
    const Answer answer = model->second(arguments);
    if (row.value("overflow", false)) return;  // what atoi makes of it is no rule
    EXPECT_FALSE(answer.undefined);
    EXPECT_EQ(row.at("code").get<int>(), answer.code);
    EXPECT_EQ(expected_text(row, "out"), answer.out);
    EXPECT_EQ(expected_text(row, "err"), answer.err);
    EXPECT_EQ(row.value("flushed", true), answer.flushed);
    EXPECT_TRUE(expected_after(row, given, arguments) == answer.after);
}

TEST(ModelsTest, AgreeWithEveryVector)
{
    int compared = 0;
    for (const auto& entry : std::filesystem::directory_iterator(OSTREL_SOURCE_DIR "/vectors")) {
        if (entry.path().extension() != ".ndjson") continue;
        std::ifstream file(entry.path());
        std::string line;
        for (int number = 1; std::getline(file, line); ++number) {
            if (line.empty()) continue;
            SCOPED_TRACE(entry.path().filename().string() + ":" + std::to_string(number) + " " +
                         line.substr(0, 300));
            compare(json::parse(line));
            ++compared;
        }
    }
    EXPECT_GT(compared, 7000);
}

TEST(ModelsTest, HoldEveryFunction)
{
    for (const auto& function : catalogue::functions()) {
        EXPECT_TRUE(models().contains(function.name)) << function.name;
    }
}

TEST(ModelsTest, NameNoFunctionThatIsNotExported)
{
    for (const auto& [name, model] : models()) EXPECT_NE(catalogue::find(name), nullptr) << name;
}

}  // namespace

}  // namespace ostrel::model
