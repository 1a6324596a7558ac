#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "run.h"

namespace ostrel::tool {

namespace {

using nlohmann::json;

TEST(Batch, TableShowsEachCaseAndASummary)
{
    const RunResult outcome = run({"batch"},
                                  "# ports\n"
                                  "PARAM_check_port 80\n"
                                  "\n"
                                  "PARAM_check_port 65536  # too high\n"
                                  "TcmValidatePPPUsername \"caf\\xE9 1\"\n"
                                  "countChar a,b 44\n");
    EXPECT_EQ((RunResult{1,
                         "      2  accepted      0  PARAM_check_port 80\n"
                         "      4  refused     601  PARAM_check_port 65536\n"
                         "         out of range: is 65536; at most 65535 is allowed\n"
                         "         library: Error in PARAM_check_port: The port shoud be between 0~65535\n"
                         "      5  accepted      0  TcmValidatePPPUsername \"caf\\xE9 1\"\n"
                         "         account_type after the call: 0\n"
                         "      6  answer        1  countChar a,b 44\n"
                         "By family and code:\n"
                         "  strings  answered: 1\n"
                         "  accounts  accepted: 1\n"
                         "  parameter_check  accepted: 1, refused 601: 1\n"
                         "4 cases: 2 accepted, 1 refused, 1 returned a number\n",
                         ""}),
              outcome);
}

TEST(Batch, JsonHoldsCodeMeaningPrintsAndBuffers)
{
    const std::vector<json> rows = run_batch(
        "PARAM_check_port 65536\n"
        R"({"check": "TcmValidatePPPUsername", "args": ["1234567890123#4567@example.net"]})"
        "\nPARAM_check_MACAddress 00-11-22-33-44-55\n"
        "PARAM_check_bool_value caf\xC3\xA9\\n\\x1B\n");
    ASSERT_EQ(5U, rows.size());
    EXPECT_EQ(json::parse(R"({"file": "-", "line": 1, "check": "PARAM_check_port", "verdict": "refused",
        "code": 601, "meaning": "out of range", "flushed": true, "err": "", "after": {},
        "reason": {"id": "number_too_high", "argument": "value_p", "offset": 0, "found": 65536, "allowed": 65535,
                   "text": "is 65536; at most 65535 is allowed"},
        "out": "Error in PARAM_check_port: The port shoud be between 0~65535\n"})"),
              rows[0]);
    EXPECT_EQ(
        json::parse(R"({"file": "-", "line": 2, "check": "TcmValidatePPPUsername", "verdict": "accepted",
        "code": 0, "meaning": "valid", "out": "", "flushed": true, "err": "", "after": {"account_type": 2}})"),
        rows[1]);
    EXPECT_EQ("-", rows[2]["out"]);
    EXPECT_EQ(false, rows[2]["flushed"]);
    EXPECT_EQ("Error in PARAM_check_bool_value: The value caf\u00e9\n\u001b out of range[0,1]\n",
              rows[3]["out"]);
    EXPECT_EQ(
        json::parse(R"({"summary": {"cases": 4, "accepted": 1, "refused": 3, "answer": 0, "malformed": 0,
        "ended": 0, "no_return": 0, "no_driver": 0, "unreadable_files": 0},
        "families": {"accounts": {"0": 1}, "parameter_check": {"402": 2, "601": 1}}})"),
        rows[4]);
}

TEST(Batch, NothingRawReachesTheTable)
{
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\'') bytes += static_cast<char>(byte);
    }
    const RunResult outcome = run({"batch"}, "PARAM_check_bool_value '" + bytes + "'\n" + bytes + " 1\n");
    EXPECT_EQ(2, outcome.status);
    for (const char c : outcome.out) EXPECT_TRUE(c == '\n' || (c >= ' ' && c <= '~'));
}

TEST(Batch, ExitCodeIsTheHighest)
{
    EXPECT_EQ(0, run({"batch"}, "PARAM_check_port 1\n").status);
    EXPECT_EQ(1, run({"batch"}, "PARAM_check_port 99999\nPARAM_check_port 1\n").status);
    EXPECT_EQ(2, run({"batch"}, "PARAM_check_port\nPARAM_check_port 99999\n").status);
    EXPECT_EQ(3, run({"batch"}, "PARAM_check_port\nPARAM_check_port @null\nPARAM_check_port 99999\n").status);
}

TEST(Batch, MalformedLinesAreReportedAndTheRestIsJudged)
{
    const std::vector<json> rows = run_batch(
        "PARAM_check_port 1\n"
        "PARAM_check_port \"1\n"
        "PARAM_check_prot 1\n"
        "PARAM_check_port 1 2\n"
        "PARAM_check_num_range 1 one 3\n"
        "PARAM_check_port 1\\x00\n"
        "{\"check\": \"PARAM_check_port\"\n"
        "{\"check\": \"PARAM_check_port\"}\n"
        "{\"check\": \"PARAM_check_port\", \"args\": [[\"1\"]]}\n"
        "{\"check\": \"PARAM_check_port\", \"args\": [\"1\", \"2\"]}\n"
        "{\"check\": 1, \"args\": []}\n"
        "[]\n"
        "PARAM_check_port 2\n");
    ASSERT_EQ(14U, rows.size());
    EXPECT_EQ("accepted", rows[0]["verdict"]);
    for (std::size_t i = 1; i < 12; ++i) {
        EXPECT_EQ("malformed", rows[i]["verdict"]) << rows[i];
        EXPECT_EQ(i + 1, rows[i]["line"]);
        EXPECT_FALSE(rows[i]["meaning"].get<std::string>().empty());
    }
    EXPECT_EQ("no closing \"", rows[1]["meaning"]);
    EXPECT_EQ("2 values were given; expected: PARAM_check_port value_p", rows[3]["meaning"]);
    EXPECT_EQ("argument value_p must be a string or NULL", rows[8]["meaning"]);
    EXPECT_EQ("accepted", rows[12]["verdict"]);
    EXPECT_EQ(11, rows[13]["summary"]["malformed"]);
}

TEST(Batch, EveryFormOfACaseInJson)
{
    struct CaseInJson {
        std::string_view line;
        const char* verdict;
        const char* meaning;  // or "" if it is not tested
    };
    const std::vector<CaseInJson> forms = {
        {R"({"check": "PARAM_check_port", "args": ["80"]})", "accepted", "valid"},
        {R"( { "args" : [ "80" ] , "check" : "PARAM_check_port" } )", "accepted", "valid"},
        {R"({"check": "PARAM_check_port", "args": ["80"], "why": ["one", {"of": "these"}]})", "accepted",
         "valid"},
        {R"({"check": "PARAM_check_port", "args": ["65536"], "args": ["80"]})", "accepted", "valid"},
        {R"({"check": "PARAM_check_port", "args": ["80"], "args": ["65536"]})", "refused", "out of range"},
        {R"({"check": "nonesuch", "check": "PARAM_check_port", "args": ["80"]})", "accepted", "valid"},
        {R"({"check": "TcmValidatePort", "check": "PARAM_check_port", "args": ["0"]})", "accepted", "valid"},
        {R"({"check": "PARAM_check_port", "args": ["\u0038\u0030"]})", "accepted", "valid"},
        {R"({"check": "countChar", "args": ["a,b", 44]})", "answer", ""},
        {R"({"check": "countChar", "args": ["a,b", -212]})", "answer", ""},
        {R"({"check": "countChar", "args": ["a,b", 4294967296]})", "malformed", ""},
        {R"({"check": "PARAM_check_port", "args": ["80", "1", "2", "3", "4"]})", "malformed",
         "5 values were given; expected: PARAM_check_port value_p"},
        {R"({"check": "PARAM_check_port", "args": "80"})", "malformed",
         R"("args" must be an array of values)"},
        {R"({"check": ["PARAM_check_port"], "args": ["80"]})", "malformed",
         R"("check" must be the name of a check)"},
        {R"({"args": ["80"]})", "malformed", R"("check" must be the name of a check)"},
        {R"({"check": "PARAM_check_port"})", "malformed", R"("args" must be an array of values)"},
        {R"({})", "malformed", R"("check" must be the name of a check)"},
        {R"({"check": "PARAM_check_port", "args": ["80"]} x)", "malformed", ""},
        {R"({"check": "PARAM_check_port", "args": ["80)", "malformed", ""},
        {R"({"check": "PARAM_check_port", "args": ["80",]})", "malformed", ""},
        {R"({"check": "PARAM_check_port", "args": ["8	0"]})", "malformed", ""},
        {R"({"check": "countChar", "args": ["a,b", 4.4e1]})", "malformed", ""},
        {R"({"check": "countChar", "args": ["a,b", -0]})", "answer", ""},
        {R"({"check": "countChar", "args": ["a,b", -9223372036854775808]})", "malformed", ""},
        {R"({"check": "countChar", "args": ["a,b", 99999999999999999999]})", "malformed", ""},
    };
    std::string lines;
    for (const CaseInJson& form : forms) lines.append(form.line).append("\n");
    const std::vector<json> rows = run_batch(lines);
    ASSERT_EQ(forms.size() + 1, rows.size());
    for (std::size_t i = 0; i < forms.size(); ++i) {
        EXPECT_EQ(forms[i].verdict, rows[i]["verdict"]) << forms[i].line;
        if (*forms[i].meaning == '\0') continue;
        EXPECT_EQ(forms[i].meaning, rows[i]["meaning"]) << forms[i].line;
    }
}

TEST(Batch, DeepOrLargeJsonIsMalformed)
{
    std::string deep = R"({"check": "PARAM_check_port", "args": [)";
    for (int i = 0; i < 200000; ++i) deep += R"([)";
    std::string wide = R"({"check": "PARAM_check_port", "args": ["1")";
    for (int i = 0; i < 200000; ++i) wide += ",1";
    wide += "]}";
    std::string full = R"({"check": "PARAM_check_port", "args": ["1"])";
    for (int i = 0; i < 2000; ++i) full += ",\"" + std::to_string(i) + "\":0";
    full += "}";
    const std::vector<json> rows = run_batch(deep + "\n" + wide + "\n" + full + "\nPARAM_check_port 1");
    ASSERT_EQ(5U, rows.size());
    EXPECT_EQ("malformed", rows[0]["verdict"]);
    EXPECT_EQ("no check takes that many arguments", rows[1]["meaning"]);
    EXPECT_EQ("the record has more than 1000 members", rows[2]["meaning"]);
    EXPECT_EQ("accepted", rows[3]["verdict"]);
}

TEST(Batch, SeveralFilesAreHeadedAndMissingOnesNamed)
{
    const File first("PARAM_check_port 1\n");
    const File empty("");
    const File last("PARAM_check_port 2");
    const RunResult outcome =
        run({"batch", first.path(), "/nowhere/x", empty.path(), "-", last.path()}, "PARAM_check_port 3\n");
    EXPECT_EQ(2, outcome.status);
    EXPECT_EQ(first.path() + ":\n      1  accepted      0  PARAM_check_port 1\n" +
                  "-:\n      1  accepted      0  PARAM_check_port 3\n" + last.path() +
                  ":\n      1  accepted      0  PARAM_check_port 2\n"
                  "By family and code:\n  parameter_check  accepted: 3\n"
                  "3 cases: 3 accepted, 0 refused; 1 unreadable file\n",
              outcome.out);
    EXPECT_EQ(
        "ostrel-check: cannot read /nowhere/x: No such file or directory\n"
        "Give the path of a file that can be read, or - for standard input.\n",
        outcome.err);
}

TEST(Batch, EmptyInputHasNoCases)
{
    EXPECT_EQ((RunResult{0, "0 cases: 0 accepted, 0 refused\n", ""}), run({"batch"}));
    EXPECT_EQ((RunResult{0, "0 cases: 0 accepted, 0 refused\n", ""}), run({"batch", "-"}, "\n\n#\n"));
}

TEST(Batch, LineEndsOfEitherKindAndAByteOrderMark)
{
    const std::vector<json> rows =
        run_batch("\xEF\xBB\xBFPARAM_check_port 1\r\n\r\nPARAM_check_bool_value 1\r\n");
    ASSERT_EQ(3U, rows.size());
    EXPECT_EQ("accepted", rows[0]["verdict"]);
    EXPECT_EQ("accepted", rows[1]["verdict"]);
    EXPECT_EQ(3, rows[1]["line"]);
}

TEST(Batch, ValueOfAMebibyteIsJudgedAndShownWhole)
{
    const std::string value(std::size_t{1} << 20, '7');
    const std::vector<json> rows = run_batch("PARAM_check_bool_value " + value + "\nPARAM_check_port 1\n");
    ASSERT_EQ(3U, rows.size());
    EXPECT_EQ("Error in PARAM_check_bool_value: The value " + value + " out of range[0,1]\n",
              rows[0]["out"].get<std::string>());
    EXPECT_EQ("accepted", rows[1]["verdict"]);
    EXPECT_LT(run({"batch"}, "PARAM_check_bool_value " + value).out.size(), 2000U);
}

TEST(Batch, LineTooLongToKeepIsMalformed)
{
    const std::string value(std::size_t{17} << 20, '7');
    const std::vector<json> rows =
        run_batch("PARAM_check_port 1\nPARAM_check_port " + value + "\nPARAM_check_port 2\n");
    ASSERT_EQ(4U, rows.size());
    EXPECT_EQ("the line is longer than 16 MiB", rows[1]["meaning"]);
    EXPECT_EQ(2, rows[1]["line"]);
    EXPECT_EQ(3, rows[2]["line"]);
    EXPECT_EQ("accepted", rows[2]["verdict"]);
}

TEST(Batch, GarbageIsMalformedLineByLine)
{
    std::string garbage;
    unsigned state = 1;
    for (int i = 0; i < 200000; ++i) {
        state = state * 1103515245 + 12345;
        garbage += static_cast<char>(state >> 16);
    }
    const RunResult outcome = run({"batch"}, garbage + "\nPARAM_check_port 1\n");
    EXPECT_EQ(2, outcome.status);
    EXPECT_EQ("1 case: 1 accepted, 0 refused; ", summary_of(outcome).substr(0, 31));
}

}  // namespace

}  // namespace ostrel::tool
