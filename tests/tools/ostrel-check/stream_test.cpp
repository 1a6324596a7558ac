// What a batch leaves out, sums up, and gives to other programs.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "run.h"

namespace ostrel::tool {

namespace {

using nlohmann::json;

TEST(Batch, OnlyRefusedLeavesOutWhatWasAccepted)
{
    const Outcome outcome = run({"batch", "--only-refused"},
                                "PARAM_check_port 80\nPARAM_check_bool_value 2\nPARAM_check_prot 1\n");
    EXPECT_EQ(2, outcome.status);
    EXPECT_EQ(std::string::npos, outcome.out.find("PARAM_check_port 80"));
    EXPECT_NE(std::string::npos, outcome.out.find("      2  refused     402  PARAM_check_bool_value 2\n"));
    EXPECT_NE(std::string::npos, outcome.out.find("      3  malformed"));
    EXPECT_EQ("2 cases: 1 accepted, 1 refused; 1 malformed line\n", summary_of(outcome));
}

TEST(Batch, StreamGivesALineForEachLineAndNothingElse)
{
    const Outcome outcome =
        run({"batch", "--stream"},
            "PARAM_check_port 80\n\n# nothing\nPARAM_check_port @null\nPARAM_check_ip_addr x\nx");
    EXPECT_EQ(3, outcome.status);
    std::istringstream lines(outcome.out);
    std::vector<std::string> rows;
    for (std::string line; std::getline(lines, line);) rows.push_back(line);
    ASSERT_EQ(6U, rows.size());
    EXPECT_EQ("accepted", json::parse(rows[0])["verdict"]);
    EXPECT_EQ("", rows[1]);
    EXPECT_EQ("", rows[2]);
    EXPECT_EQ("ended", json::parse(rows[3])["verdict"]);
    EXPECT_EQ("byte 1 is \"x\"; digits and . are allowed", json::parse(rows[4])["reason"]["text"]);
    EXPECT_EQ("malformed", json::parse(rows[5])["verdict"]);
    EXPECT_EQ(1, json::parse(rows[0])["line"]);
    EXPECT_FALSE(json::parse(rows[0]).contains("file"));
    EXPECT_EQ(2, run({"batch", "--stream", "--json"}, "").status);
    EXPECT_EQ(2, run({"batch", "--stream", "--only-refused"}, "").status);
}

TEST(Batch, SumsAreThoseOfOneProcessWithAnyNumber)
{
    std::string lines;
    for (int i = 0; i < 20000; ++i) {
        lines += "PARAM_check_port " + std::to_string(i * 7) + "\nTcmValidateTime x\ncountChar a 97\n";
    }
    const Outcome one = run({"batch", "--only-refused", "--json"}, lines);
    const Outcome four = run({"batch", "--only-refused", "--json", "--jobs", "4"}, lines);
    EXPECT_TRUE(one == four);
    EXPECT_NE(std::string::npos,
              summary_of(one).find(R"("families":{"strings":{"answered":20000},"date_time":{"-1":20000},)"
                                   R"("parameter_check":{"0":9363,"601":10637}})"));
}

}  // namespace

}  // namespace ostrel::tool
