// Tests that the examples are complete: they cover every function, and every line is a case.

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "run.h"

namespace ostrel::tool {

namespace {

TEST(Examples, JudgeEveryFunctionAndHoldGoodAndRefusedValues)
{
    std::vector<std::string> arguments = {"batch", "--json"};
    for (const auto& entry : std::filesystem::directory_iterator(OSTREL_SOURCE_DIR "/examples")) {
        // Scripts generate cases but contain none.
        if (entry.is_regular_file() && entry.path().extension() != ".py") arguments.push_back(entry.path());
    }
    const RunResult outcome = run(arguments);
    EXPECT_EQ(1, outcome.status);  // no line is malformed, and every check returns

    std::set<std::string> judged;
    std::set<std::string> verdicts;
    std::istringstream lines(outcome.out);
    for (std::string line; std::getline(lines, line);) {
        const nlohmann::json row = nlohmann::json::parse(line);
        if (!row.contains("check")) continue;
        judged.insert(row["check"]);
        verdicts.insert(row["verdict"]);
    }
    for (const catalogue::Function& function : catalogue::functions()) {
        EXPECT_TRUE(judged.contains(std::string(function.name))) << function.name;
    }
    EXPECT_TRUE(verdicts.contains("accepted"));
    EXPECT_TRUE(verdicts.contains("refused"));
}

}  // namespace

}  // namespace ostrel::tool
