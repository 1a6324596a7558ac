// Tests cases that end their process or do not return, readers that exit, and closed streams.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <string>

#include "run.h"

namespace ostrel::tool {

namespace {

using nlohmann::json;

constexpr char kTrouble[] =
    "PARAM_check_port 1\n"
    "PARAM_check_port @null\n"
    "PARAM_check_port 99999\n"
    "PARAM_check_ui2_value 1\n"
    "TcmValidateIPAddress @null\n"
    "{\"check\": \"PARAM_check_port\", \"args\": [null]}\n"
    "PARAM_check_port 2\n"
    "PARAM_check_ui4_value 5";

TEST(Trouble, IsTheVerdictOfItsLineAndTheRestIsJudged)
{
    const std::vector<json> rows = run_batch(kTrouble, {"--limit-time", "0.3", "--try"});
    ASSERT_EQ(9U, rows.size());
    std::vector<std::string> verdicts;
    for (std::size_t i = 0; i < 8; ++i) {
        verdicts.push_back(rows[i]["verdict"]);
        EXPECT_EQ(i + 1, rows[i]["line"]);
    }
    EXPECT_EQ((std::vector<std::string>{"accepted", "ended", "refused", "no_return", "ended", "ended",
                                        "accepted", "no_return"}),
              verdicts);
    EXPECT_EQ("an assertion ended the process (SIGABRT)", rows[1]["meaning"]);
    EXPECT_NE(std::string::npos,
              rows[1]["err"].get<std::string>().find("Assertion `value_p != ((void *)0)' failed."));
    EXPECT_TRUE(rows[1]["code"].is_null());
    EXPECT_EQ("the check did not return within 0.3 s", rows[3]["meaning"]);
    EXPECT_NE("an assertion ended the process (SIGABRT)", rows[4]["meaning"]);
    EXPECT_EQ("", rows[4]["err"]);
    EXPECT_EQ(
        json::parse(R"({"cases": 8, "accepted": 2, "refused": 1, "answer": 0, "malformed": 0, "ended": 3,
        "no_return": 2, "no_driver": 0, "unreadable_files": 0})"),
        rows[8]["summary"]);
}

TEST(Trouble, TableNamesTheCaseAndItsAssertion)
{
    const RunResult outcome = run({"batch", "--limit-time", "0.3", "--try", "--jobs", "2"}, kTrouble);
    EXPECT_EQ(3, outcome.status);
    EXPECT_NE(std::string::npos,
              outcome.out.find("      2  ended            PARAM_check_port @null\n"
                               "         an assertion ended the process (SIGABRT): is NULL, which fails an "
                               "assertion in the check\n"
                               "         library, to standard error: ostrel-check: parameter_check:"));
    EXPECT_NE(std::string::npos,
              outcome.out.find("      4  no return        PARAM_check_ui2_value 1\n"
                               "         the check did not return within 0.3 s: is a value for which the "
                               "check does not return\n"));
    EXPECT_EQ("8 cases: 2 accepted, 1 refused, 3 ended the process, 2 did not return\n", summary_of(outcome));
}

// If the description predicts that a call never returns, the program does not make the call.
TEST(Trouble, ThatIsKnownNeedsNoCall)
{
    std::string lines;
    for (int i = 0; i < 100; ++i) lines += "PARAM_check_ui2_value 1\nPARAM_check_ui2_value x\n";
    const std::vector<json> rows = run_batch(lines, {"--limit-time", "3600"});
    ASSERT_EQ(201U, rows.size());
    EXPECT_EQ("no_return", rows[0]["verdict"]);
    EXPECT_EQ(false, rows[0]["tried"]);
    EXPECT_EQ("the check is known not to return and was not called", rows[0]["meaning"]);
    EXPECT_EQ("never_returns", rows[0]["reason"]["id"]);
    EXPECT_EQ("refused", rows[1]["verdict"]);
    EXPECT_FALSE(rows[1].contains("tried"));
    EXPECT_EQ(100, rows[200]["summary"]["no_return"]);
    EXPECT_EQ(
        (RunResult{3,
                   "no return: the check is known not to return and was not called (is a value for which "
                   "the check does not return)\n",
                   ""}),
        run({"--limit-time", "3600", "PARAM_check_ui2_value", "1"}));
    const RunResult tried = run({"--try", "--limit-time", "0.2", "PARAM_check_ui2_value", "1"});
    EXPECT_TRUE(tried.out.starts_with("no return: the check did not return within 0.2 s")) << tried.out;
}

TEST(Trouble, OfManyCasesIsOvercome)
{
    std::string lines;
    for (int i = 0; i < 200; ++i) lines += "PARAM_check_port @null\nPARAM_check_port 1\n";
    const RunResult outcome = run({"batch"}, lines);
    EXPECT_EQ("400 cases: 200 accepted, 0 refused, 200 ended the process\n", summary_of(outcome));
}

// shell runs a command line in which $CHECK is the program, and returns its status.
int shell(const std::string& command)
{
    setenv("CHECK", program().c_str(), 1);
    // NOLINTNEXTLINE(bugprone-command-processor): the test needs pipelines.
    const int status = std::system(("bash -c '" + command + "'").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
}

TEST(Trouble, ClosedPipeEndsTheBatch)
{
    EXPECT_EQ(0, shell("yes PARAM_check_port 1 | timeout 20 $CHECK batch | head -n 1 >/dev/null;"
                       "test ${PIPESTATUS[1]} -eq 0"));
    EXPECT_EQ(0, shell("$CHECK PARAM_check_port 65536 | true; test ${PIPESTATUS[0]} -eq 1"));
    EXPECT_EQ(0, shell("$CHECK list | true; test ${PIPESTATUS[0]} -eq 0"));
}

TEST(Trouble, OutputThatCannotBeWrittenIsReported)
{
    EXPECT_EQ(0, shell("echo PARAM_check_port 1 | $CHECK batch 2>&1 >/dev/full | grep -q \"No space left\""));
    EXPECT_EQ(2, shell("echo PARAM_check_port 1 | $CHECK batch >/dev/full 2>/dev/null"));
    EXPECT_EQ(2, shell("echo PARAM_check_port 1 | $CHECK batch >&- 2>/dev/null"));
    EXPECT_EQ(2, shell("echo PARAM_check_port 1 | $CHECK batch >&- 2>&-"));
    EXPECT_EQ(2, shell("$CHECK PARAM_check_port 1 >/dev/full 2>/dev/null"));
    EXPECT_EQ(0, shell("$CHECK PARAM_check_port 1 <&- >/dev/null"));
    EXPECT_EQ(2, shell("$CHECK batch <&- >/dev/null 2>&1"));
}

TEST(Trouble, ResultsComeAsTheCasesDo)
{
    EXPECT_EQ(0, shell("coproc $CHECK batch; echo PARAM_check_port 1 >&${COPROC[1]};"
                       "read -t 10 line <&${COPROC[0]} && test \"${line:0:11}\" = \"1  accepted\""));
}

TEST(Trouble, KilledSupervisorLeavesNoWorkerRunning)
{
    EXPECT_EQ(
        0, shell("$CHECK batch --try --limit-time 60 <<< \"PARAM_check_ui2_value 1\" >/dev/null & parent=$!;"
                 "for i in {1..100}; do worker=$(cat /proc/$parent/task/$parent/children 2>/dev/null);"
                 "test -n \"$worker\" && break; sleep 0.1; done; kill -9 $parent;"
                 "for i in {1..100}; do test -d /proc/$((worker)) || exit 0;"
                 "grep -q \"State:.Z\" /proc/$((worker))/status && exit 0; sleep 0.1; done; exit 1"));
}

}  // namespace

}  // namespace ostrel::tool
