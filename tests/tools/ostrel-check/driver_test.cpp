// Tests the wireless channel check with a stand-in for the driver's answer.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "calling/own_var.h"
#include "run.h"

namespace ostrel::tool {

using calling::kChannelList;

namespace {

class Driver : public testing::Test {
 protected:
    // Each test has a separate folder for temporary files, so it can detect files that are left there.
    void SetUp() override
    {
        if (!calling::can_list_channels()) GTEST_SKIP() << kChannelList << " cannot be written";
        ASSERT_NE(nullptr, mkdtemp(folder_.data()));
        setenv("TMPDIR", folder_.c_str(), 1);
    }

    void TearDown() override
    {
        if (IsSkipped()) return;
        EXPECT_TRUE(std::filesystem::is_empty(folder_));
        EXPECT_FALSE(std::filesystem::exists(kChannelList));
        std::filesystem::remove_all(folder_);
        unsetenv("TMPDIR");
    }

 private:
    std::string folder_ = "/tmp/ostrel driver.XXXXXX";  // the space in it must do no harm
};

TEST_F(Driver, ListsTheChannelsGiven)
{
    EXPECT_EQ((RunResult{0, "accepted: 0, valid\n", ""}),
              run({"--channels", "1 6 11", "WLAN_check_channel", "6", "RADIO_2.4GHz"}));
    const RunResult refused = run({"--channels", "1 6 11", "WLAN_check_channel", "13", "RADIO_2.4GHz"});
    EXPECT_EQ(1, refused.status);
    EXPECT_TRUE(refused.out.starts_with("refused: -1")) << refused.out;
}

TEST_F(Driver, MayListNothing)
{
    EXPECT_EQ(1, run({"--channels", "", "WLAN_check_channel", "6", "RADIO_2.4GHz"}).status);
}

TEST_F(Driver, ListsNumbersOnly)
{
    EXPECT_EQ(2, run({"--channels", "1,6,11", "WLAN_check_channel", "6", "RADIO_2.4GHz"}).status);
}

TEST_F(Driver, AnswersABatchToo)
{
    const std::string input =
        "WLAN_check_channel 6 RADIO_2.4GHz\n"
        "WLAN_check_channel 13 RADIO_2.4GHz\n";
    const auto rows = run_batch(input, {"--channels", "1 6 11"});
    ASSERT_EQ(3U, rows.size());
    EXPECT_EQ(0, rows[0]["code"]);
    EXPECT_EQ(-1, rows[1]["code"]);
}

class WithTool {
 public:
    explicit WithTool(std::string_view script)
    {
        std::filesystem::create_directory(folder_);
        std::ofstream(folder_ / "wlctl") << script;
        std::filesystem::permissions(folder_ / "wlctl", std::filesystem::perms::owner_all);
        setenv("PATH", (folder_.string() + ":" + saved_).c_str(), 1);
    }
    WithTool(const WithTool&) = delete;
    WithTool& operator=(const WithTool&) = delete;
    ~WithTool()
    {
        setenv("PATH", saved_.c_str(), 1);
        std::filesystem::remove_all(folder_);
    }

 private:
    std::filesystem::path folder_ = std::filesystem::temp_directory_path() / "bin";
    std::string saved_ = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe)
};

constexpr char kChannel6[] = "WLAN_check_channel 6 RADIO_2.4GHz\n";

TEST_F(Driver, IsToldInTheReasonOfARefusal)
{
    const auto rows = run_batch("WLAN_check_channel 13 RADIO_2.4GHz\n", {"--channels", "1 6 11 14"});
    EXPECT_EQ("refused", rows[0]["verdict"]);
    EXPECT_EQ("not_listed_by_driver", rows[0]["reason"]["id"]);
    EXPECT_EQ("channel is 13; of the channels that the wireless driver lists, 1, 6, 11 are allowed",
              rows[0]["reason"]["text"]);
    const auto none = run_batch(kChannel6, {"--channels", ""});
    EXPECT_EQ("no_channel_listed", none[0]["reason"]["id"]);
}

TEST_F(Driver, ThatIsMissingDoesNotRefuseTheValue)
{
    const auto rows = run_batch(std::string(kChannel6) +
                                "WLAN_check_channel 6 RADIO_3GHz\nWLAN_check_channel 0 "
                                "RADIO_2.4GHz\n");
    EXPECT_EQ("no_driver", rows[0]["verdict"]);
    EXPECT_TRUE(rows[0]["code"].is_null());
    EXPECT_EQ("no_driver_list", rows[0]["reason"]["id"]);
    EXPECT_EQ("the driver returned no list: wlctl was not found", rows[0]["reason"]["text"]);
    EXPECT_NE(std::string::npos, rows[0]["err"].get<std::string>().find("wlctl"));
    EXPECT_EQ("refused", rows[1]["verdict"]);  // this verdict needs no list
    EXPECT_EQ("accepted", rows[2]["verdict"]);
    EXPECT_EQ(1, rows[3]["summary"]["no_driver"]);
    const RunResult single = run({"WLAN_check_channel", "6", "RADIO_2.4GHz"});
    EXPECT_EQ(2, single.status);
    EXPECT_EQ("no driver: the channel was not judged (the driver returned no list: wlctl was not found)\n",
              single.out);
    EXPECT_NE(std::string::npos, single.err.find("wlctl")) << single.err;
}

TEST_F(Driver, ThatFailsDoesNotRefuseTheValue)
{
    const WithTool tool("#!/bin/sh\necho no such device >&2\nexit 1\n");
    const auto rows = run_batch(kChannel6);
    EXPECT_EQ("no_driver", rows[0]["verdict"]);
    EXPECT_EQ("the driver returned no list: wlctl failed", rows[0]["reason"]["text"]);
    EXPECT_EQ("no such device\n", rows[0]["err"]);
}

// A tool that prints a warning but also lists channels succeeds.
TEST_F(Driver, MayGrumble)
{
    const WithTool tool("#!/bin/sh\necho slow >&2\necho 1 6 11\n");
    EXPECT_EQ((RunResult{0, "accepted: 0, valid\n", "slow\n"}),
              run({"WLAN_check_channel", "6", "RADIO_2.4GHz"}));
}

// A tool that hangs must leave no list that a later call could mistake for the driver's.
TEST_F(Driver, MayHang)
{
    const WithTool tool("#!/bin/sh\nsleep 60\n");
    EXPECT_EQ(3, run({"--limit-time", "0.3", "WLAN_check_channel", "6", "RADIO_2.4GHz"}).status);
    EXPECT_FALSE(std::filesystem::exists(kChannelList));
    EXPECT_EQ(3, run({"batch", "--limit-time", "0.3"}, "WLAN_check_channel 6 RADIO_2.4GHz\n").status);
}

// Two processes that ran the check concurrently would mix up their lists in the file with the fixed name.
TEST_F(Driver, IsAskedByOneProcessAtATime)
{
    std::string input;
    for (int i = 0; i < 200; ++i)
        input += "WLAN_check_channel 6 RADIO_2.4GHz\n" + std::string(200000, '#') + "\n";
    const RunResult outcome = run({"batch", "--jobs", "4", "--channels", "1 6 11"}, input);
    EXPECT_EQ("200 cases: 200 accepted, 0 refused\n", summary_of(outcome));
}

}  // namespace

}  // namespace ostrel::tool
