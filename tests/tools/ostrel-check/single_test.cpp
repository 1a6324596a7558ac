#include <gtest/gtest.h>

#include "run.h"

namespace ostrel::tool {

namespace {

std::string usage_error(const std::string& problem)
{
    return "ostrel-check: " + problem + "\nostrel-check --help shows how to use it.\n";
}

std::string value_error(const std::string& problem, const std::string& name)
{
    return "ostrel-check: " + problem + "\nostrel-check explain " + name + " describes its arguments.\n";
}

TEST(Single, AcceptanceExitsWithZero)
{
    EXPECT_EQ((RunResult{0, "accepted: 0, valid\n", ""}), run({"PARAM_check_port", "8080"}));
}

TEST(Single, RefusalExitsWithOneAfterTheReport)
{
    const auto refused = [](const std::string& reason) {
        return RunResult{1,
                         "library: Error in PARAM_check_port: The port shoud be between 0~65535\n"
                         "refused: 601, out of range (" +
                             reason + ")\n",
                         ""};
    };
    EXPECT_EQ(refused("is 65536; at most 65535 is allowed"), run({"PARAM_check_port", "65536"}));
    EXPECT_EQ(refused("is -1; at least 0 is needed"), run({"PARAM_check_port", "-1"}));
    EXPECT_EQ(refused("is read as -1; at least 0 is needed"),
              run({"--limit-time", "9", "PARAM_check_port", "-1a"}));
}

TEST(Single, AnythingAfterTheNameIsAValue)
{
    EXPECT_EQ(1, run({"PARAM_check_bool_value", "--help"}).status);
    EXPECT_EQ("library: Error in PARAM_check_bool_value: The value --version out of range[0,1]\n",
              run({"PARAM_check_bool_value", "--version"}).out.substr(0, 80));
    EXPECT_EQ(0, run({"PARAM_check_printable_ascii_string", "--"}).status);
    EXPECT_EQ(0, run({"PARAM_check_printable_ascii_string", "-e"}).status);
    EXPECT_EQ(0, run({"PARAM_check_printable_ascii_string", "batch"}).status);
    EXPECT_EQ(0, run({"--", "PARAM_check_printable_ascii_string", "list"}).status);
}

TEST(Single, VerdictBeginsALineWhateverWasPrinted)
{
    EXPECT_EQ(
        (RunResult{1, "library: -\nrefused: 402, invalid value (byte 3 is \"-\"; \":\" is expected there)\n",
                   ""}),
        run({"PARAM_check_MACAddress", "00-11-22-33-44-55"}));
}

TEST(Single, EmptyLinesAreLeftOut)
{
    EXPECT_EQ((RunResult{1,
                         "library: Error in WLAN_check_beacon_type: Error beacon type:a\n"
                         "library: b\n"
                         "refused: 402, invalid value (is not one of None, Basic, WPA, 11i, WPAand11i)\n",
                         ""}),
              run({"WLAN_check_beacon_type", "a\n\nb"}));
}

TEST(Single, NumberThatIsNotAVerdictIsAnAnswer)
{
    EXPECT_EQ((RunResult{0, "answer 2\n", ""}), run({"countChar", "a,b,c", "44"}));
    EXPECT_EQ((RunResult{0, "answer 1\n", ""}), run({"countChar", "a,b", "0x2C"}));
}

TEST(Single, OutputArgumentsAreShown)
{
    EXPECT_EQ((RunResult{0,
                         "accepted: 0, valid\n"
                         "  account_type after the call: 2\n",
                         ""}),
              run({"TcmValidatePPPUsername", "1234567890123#4567@example.net"}));
}

TEST(Single, AnUnwrittenNumberIsShownAsUnwritten)
{
    EXPECT_TRUE(run({"TcmValidatePPPUsername", "1#2#3#4567890123456@example.net"})
                    .out.ends_with("  account_type after the call: not written\n"));
    EXPECT_TRUE(
        run({"TcmValidatePPPUsername", "someone"}).out.ends_with("  account_type after the call: 0\n"));
}

TEST(Single, EachBlockIsAWordAndIsShownAfterTheCall)
{
    const RunResult outcome = run({"WLAN_check_wepkeys", "0123456789", "abc", "@@null", ""});
    EXPECT_EQ(1, outcome.status);
    EXPECT_TRUE(outcome.out.ends_with("  keys after the call: 0123456789 abc @@null \"\"\n")) << outcome.out;
    EXPECT_EQ(value_error("1 value was given; expected: WLAN_check_wepkeys keys_1 keys_2 keys_3 keys_4",
                          "WLAN_check_wepkeys"),
              run({"WLAN_check_wepkeys", "0123456789"}).err);
    EXPECT_EQ(3, run({"WLAN_check_wepkeys", "@null"}).status);
}

TEST(Single, BufferThatIsOnlyWrittenIsShown)
{
    EXPECT_EQ((RunResult{0, "accepted: 0, valid\n  offset_out after the call: +00:00\n", ""}),
              run({"HNAPCORE_check_timezone", "UTC"}));
}

TEST(Single, BufferThatIsRewrittenIsShownSafely)
{
    const RunResult outcome = run({"WLAN_check_ssid", "caf&eacute;"});
    EXPECT_EQ(1, outcome.status);
    EXPECT_TRUE(outcome.out.ends_with(" after the call: \"caf\\xE9\"\n")) << outcome.out;
}

TEST(Single, EscapesAreReadOnRequest)
{
    EXPECT_EQ(0, run({"-e", "TcmValidatePPPPassword", "caf\\xE9"}).status);
    EXPECT_EQ(1, run({"--escapes", "TcmValidatePPPPassword", "a\\nb"}).status);
    EXPECT_EQ(0, run({"TcmValidatePPPPassword", "a\\nb"}).status);
    EXPECT_EQ((RunResult{2, "",
                         value_error("argument value_p contains U+0000 (NUL), which would end the value in C",
                                     "PARAM_check_port")}),
              run({"-e", "PARAM_check_port", "1\\x00"}));
    EXPECT_EQ((RunResult{2, "", usage_error("\\q is not an escape; write a backslash as \\\\")}),
              run({"-e", "PARAM_check_port", "\\q"}));
}

TEST(Single, RawBytesReachTheCheckAsTheyAre)
{
    EXPECT_EQ(0, run({"TcmValidatePPPPassword", "caf\xE9"}).status);
    EXPECT_EQ("library: Error in PARAM_check_bool_value: The value \xE9\x1B[1m out of range[0,1]\n",
              run({"PARAM_check_bool_value", "\xE9\x1B[1m"}).out.substr(0, 76));
}

TEST(Single, FailedAssertionExitsWithThree)
{
    const RunResult outcome = run({"PARAM_check_bool_value", "@null"});
    EXPECT_EQ(3, outcome.status);
    EXPECT_EQ(
        "ended: an assertion ended the process (SIGABRT) (is NULL, which fails an assertion in the check)\n",
        outcome.out);
    EXPECT_TRUE(outcome.err.starts_with("library: ostrel-check: parameter_check:")) << outcome.err;
    EXPECT_TRUE(
        outcome.err.ends_with(": PARAM_check_bool_value: Assertion `value_p != ((void *)0)' failed.\n"))
        << outcome.err;
    EXPECT_EQ(1, run({"PARAM_check_bool_value", "@@null"}).status);
}

TEST(Single, CallThatDoesNotReturnExitsWithThree)
{
    EXPECT_EQ((RunResult{
                  3,
                  "no return: the check did not return within 0.2 s (is a value for which the check does not "
                  "return)\n",
                  ""}),
              run({"--try", "--limit-time", "0.2", "PARAM_check_ui2_value", "1"}));
}

TEST(Single, WrongUsageExitsWithTwo)
{
    EXPECT_EQ((RunResult{2, "",
                         "ostrel-check: there is no check or command \"PARAM_check_prot\"; did you mean "
                         "PARAM_check_port?\n"
                         "ostrel-check list WORD searches the names and rules of all checks.\n"}),
              run({"PARAM_check_prot", "1"}));
    EXPECT_EQ((RunResult{2, "",
                         value_error("0 values were given; expected: PARAM_check_port value_p",
                                     "PARAM_check_port")}),
              run({"PARAM_check_port"}));
    EXPECT_EQ((RunResult{2, "",
                         value_error("1 value was given; expected: PARAM_check_num_range value_p min:number "
                                     "max:number",
                                     "PARAM_check_num_range")}),
              run({"PARAM_check_num_range", "1"}));
    EXPECT_EQ((RunResult{2, "",
                         value_error("argument min must be a number, but \"a\" is not one",
                                     "PARAM_check_num_range")}),
              run({"PARAM_check_num_range", "1", "a", "3"}));
    EXPECT_EQ((RunResult{2, "",
                         value_error("argument min must be a number from -2147483648 to 2147483647",
                                     "PARAM_check_num_range")}),
              run({"PARAM_check_num_range", "1", "2147483648", "3"}));
    EXPECT_EQ((RunResult{2, "", value_error("argument min must be a number", "PARAM_check_num_range")}),
              run({"PARAM_check_num_range", "1", "@null", "3"}));
    EXPECT_EQ((RunResult{2, "", usage_error("a check or a command is required")}), run({"-e"}));
    EXPECT_EQ((RunResult{2, "", usage_error("unknown option --limit")}),
              run({"--limit", "PARAM_check_port"}));
    EXPECT_EQ(2, run({"--limit-time", "0", "PARAM_check_port", "1"}).status);
    EXPECT_EQ(2, run({"batch", "--nothing"}).status);
    EXPECT_EQ(2, run({"explain", "PARAM_check_port", "more"}).status);
}

TEST(Single, UnknownNamesAreShownSafely)
{
    const RunResult outcome = run({"\x1B[1m\xE9", "1"});
    EXPECT_EQ(2, outcome.status);
    EXPECT_EQ("ostrel-check: there is no check or command \"\\x1B[1m\\xE9\"\n", outcome.err.substr(0, 57));
}

TEST(Single, HelpAndVersion)
{
    EXPECT_EQ((RunResult{0, "ostrel-check " OSTREL_VERSION "\n", ""}), run({"--version"}));
    EXPECT_NE(std::string::npos, run({"--help"}).out.find("ostrel-check PARAM_check_port 8080"));
    EXPECT_NE(std::string::npos, run({"batch", "--help"}).out.find("--json"));
}

TEST(Single, AloneTheProgramShowsItsUsage)
{
    const RunResult outcome = run({});
    EXPECT_EQ(2, outcome.status);
    EXPECT_TRUE(outcome.err.starts_with("Usage: ostrel-check [OPTIONS] NAME VALUE...\n")) << outcome.err;
    EXPECT_TRUE(outcome.err.ends_with("\nostrel-check --help shows more.\n")) << outcome.err;
}

TEST(Single, JsonIsTheSameAsInABatch)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"PARAM_check_port", "8080"}, R"(["8080"])"},
        {{"PARAM_check_port", "65536"}, R"(["65536"])"},
        {{"PARAM_check_port"}, "[]"},
        {{"PARAM_check_bool_value", "@null"}, "[null]"},
        {{"PARAM_check_bool_value", "@@null"}, R"(["@null"])"},
        {{"PARAM_check_num_range", "15", "1", "0x14"}, R"(["15", 1, 20])"},
        {{"TcmValidatePPPPassword", "caf\xE9\"\n"}, R"([{"base64": "Y2Fm6SIK"}])"},
        {{"WLAN_check_wepkeys", "0123456789", "abc", "", ""}, R"([["0123456789", "abc", "", ""]])"},
        {{"PARAM_check_ui2_value", "1"}, R"(["1"])"}};
    for (const auto& [words, args] : cases) {
        std::vector<std::string> arguments = {"--json"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const std::string line = R"({"check": ")" + words.front() + R"(", "args": )" + args + "}";
        EXPECT_EQ(run({"batch", "--stream"}, line), run(arguments)) << line;
    }
    EXPECT_EQ(run({"--json", "TcmValidatePPPPassword", "caf\xE9"}),
              run({"--json", "-e", "TcmValidatePPPPassword", "caf\\xE9"}));
    EXPECT_EQ(run({"--limit-time", "0.2", "--json", "--try", "PARAM_check_ui2_value", "1"}).status, 3);
}

TEST(Single, ListShowsArgumentsAndRule)
{
    const RunResult list = run({"list"});
    EXPECT_EQ(0, list.status);
    EXPECT_NE(std::string::npos, list.out.find("\nparameter_check\n"));
    EXPECT_NE(std::string::npos, list.out.find("  PARAM_check_number value_p min_len:number max_len:number\n"
                                               "      value_p has min_len to max_len bytes and contains only "
                                               "digits\n"));
    EXPECT_NE(std::string::npos, list.out.find("      fills in account_type\n"));
}

}  // namespace

}  // namespace ostrel::tool
