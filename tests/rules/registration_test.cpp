// Tests that each description is in its function's module, and that undefined references are rejected.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/rules/told.h"

namespace ostrel::rules {

namespace {

std::string contents(const std::filesystem::path& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(RegistrationTest, TheModuleIsThatOfTheHeader)
{
    for (const Check& check : checks()) {
        const std::string header = OSTREL_SOURCE_DIR "/include/ostrel/" + std::string(check.module) + ".h";
        EXPECT_NE(std::string::npos, contents(header).find(std::string(check.name) + "("))
            << check.name << " in " << check.module;
    }
}

std::string fault(std::vector<Step> steps, std::vector<ArgumentWords> arguments)
{
    try {
        registered(check("a_check", std::move(arguments), std::move(steps)));
    } catch (const std::logic_error& error) {
        return error.what();
    }
    return "";
}

std::string fault(std::vector<Step> steps)
{
    std::vector<ArgumentWords> arguments;
    arguments.push_back(text("one", "a text"));
    return fault(std::move(steps), std::move(arguments));
}

TEST(RegistrationTest, FaultsAreNamed)
{
    EXPECT_EQ("", fault({refuse(1, empty("one"))}));
    EXPECT_EQ("a_check: an argument already has the name one", fault({remember("one", it)}));
    EXPECT_EQ("a_check: the check has no argument ", fault({refuse(1, empty())}, {}));
    EXPECT_EQ("a_check: unknown name two", fault({refuse(1, empty("two"))}));
    EXPECT_EQ("a_check: unknown name two", fault({for_each(list_of(it, ','), {refuse(1, empty("two"))})}));
    EXPECT_EQ("a_check: unknown name item", fault({refuse(1, empty("item"))}));
    EXPECT_EQ("a_check: missing end of <one", fault({refuse(1, empty(), line("of <one"))}));
    EXPECT_EQ("a_check: empty name in of <>", fault({refuse(1, empty(), line("of <>"))}));
    EXPECT_EQ("no description of nobody", fault({refuse(1, refused_by("nobody"))}));
    EXPECT_EQ("wrong number of arguments for TcmValidatePort",
              fault({refuse(1, refused_by("TcmValidatePort", {it, it}))}));
}

TEST(RegistrationTest, ListsHaveNamesOfTheirOwn)
{
    const std::vector<Step> steps = {
        for_each(list_of(it, ','), {refuse(1, empty("item"), line("<index>, before <rest>"))})};
    EXPECT_EQ("1, before b,c", answer_of(steps, {"a,,b,c"}).out);
}

}  // namespace

}  // namespace ostrel::rules
