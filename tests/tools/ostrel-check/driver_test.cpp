// The check of the wireless channel, with an answer in the driver's place.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

#include "catalogue/own_var.h"
#include "run.h"

namespace ostrel::tool {

using catalogue::kChannelList;

namespace {

class Driver : public testing::Test {
 protected:
    // Each test has a folder for temporary files of its own, so that it can see that none is left.
    void SetUp() override
    {
        if (!catalogue::can_list_channels()) GTEST_SKIP() << kChannelList << " cannot be written";
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
    std::string folder_ = "/tmp/ostrel driver.XXXXXX";  // a blank in its name does no harm
};

TEST_F(Driver, ListsTheChannelsGiven)
{
    EXPECT_EQ((Outcome{0, "accepted: 0, valid\n", ""}),
              run({"--channels", "1 6 11", "WLAN_check_channel", "6", "RADIO_2.4GHz"}));
    const Outcome refused = run({"--channels", "1 6 11", "WLAN_check_channel", "13", "RADIO_2.4GHz"});
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

// A tool that hangs leaves no list behind that a later call could take for the driver's.
TEST_F(Driver, MayHang)
{
    const File path("#!/bin/sh\nsleep 60\n");
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "bin";
    std::filesystem::create_directory(folder);
    std::filesystem::copy(path.path(), folder / "wlctl");
    std::filesystem::permissions(folder / "wlctl", std::filesystem::perms::owner_all);
    const std::string saved = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe)
    setenv("PATH", (folder.string() + ":" + saved).c_str(), 1);
    EXPECT_EQ(3, run({"--limit-time", "0.3", "WLAN_check_channel", "6", "RADIO_2.4GHz"}).status);
    EXPECT_FALSE(std::filesystem::exists(kChannelList));
    EXPECT_EQ(3, run({"batch", "--limit-time", "0.3"}, "WLAN_check_channel 6 RADIO_2.4GHz\n").status);
    setenv("PATH", saved.c_str(), 1);
    std::filesystem::remove_all(folder);
}

// The file of one fixed name would mix the lists up if two processes ran the check at once.
TEST_F(Driver, IsAskedByOneProcessAtATime)
{
    std::string input;
    for (int i = 0; i < 200; ++i)
        input += "WLAN_check_channel 6 RADIO_2.4GHz\n" + std::string(200000, '#') + "\n";
    const Outcome outcome = run({"batch", "--jobs", "4", "--channels", "1 6 11"}, input);
    EXPECT_EQ("200 cases: 200 accepted, 0 refused\n", summary_of(outcome));
}

}  // namespace

}  // namespace ostrel::tool
