// Tests WLAN_check_channel with a stand-in for the driver's tool.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <ostrel/result_code.h>
#include <ostrel/wlan_check.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "calling/own_var.h"

namespace ostrel::tests {

using calling::can_list_channels;
using calling::kChannelList;

namespace {

namespace fs = std::filesystem;

constexpr char kRadio[] = "RADIO_2.4GHz";

class Channel : public testing::Test {
 protected:
    void SetUp() override
    {
        if (!can_list_channels()) GTEST_SKIP() << kChannelList << " cannot be written";
        // If /var is shared, the tests of other build folders wait here.
        lock_ = open("/var", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ASSERT_EQ(0, flock(lock_, LOCK_EX));
        fs::remove(kChannelList);
        std::string folder = (fs::temp_directory_path() / "ostrel-channel-XXXXXX").string();
        ASSERT_NE(nullptr, mkdtemp(folder.data()));
        folder_ = folder;
        path_ = std::getenv("PATH");
        setenv("PATH", folder_.c_str(), 1);
    }

    void TearDown() override
    {
        if (!folder_.empty()) {
            setenv("PATH", path_.c_str(), 1);
            fs::remove_all(folder_);
        }
        std::error_code ignored;
        fs::remove(kChannelList, ignored);
        close(lock_);
    }

    // tool installs a wlctl that records its call and then runs the shell script. PATH contains
    // no other folder, so the script can use only the shell's built-in commands.
    void tool(const std::string& script)
    {
        const fs::path file = folder_ / "wlctl";
        std::ofstream(file) << "#!/bin/sh\necho \"$*\" >>" << folder_.string() << "/calls\n"
                            << script << '\n';
        fs::permissions(file, fs::perms::owner_all);
    }

    void list(const std::string& text) { tool("printf '" + text + "'"); }

    // Reply is the code and what the check, the shell and the tool write to standard output and error.
    struct Reply {
        int code = 0;
        std::string out;
        std::string err;
    };

    static Reply ask(const char* channel, const char* radio = kRadio)
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        Reply reply;
        reply.code = WLAN_check_channel(channel, radio);
        reply.out = testing::internal::GetCapturedStdout();
        reply.err = testing::internal::GetCapturedStderr();
        return reply;
    }

    static int check(const char* channel, const char* radio = kRadio)
    {
        const Reply reply = ask(channel, radio);
        EXPECT_EQ("", reply.out);
        EXPECT_EQ("", reply.err);
        return reply.code;
    }

    [[nodiscard]] std::string calls() const
    {
        std::ifstream file(folder_ / "calls");
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static bool list_is_left() { return fs::exists(fs::symlink_status(kChannelList)); }

 private:
    int lock_ = -1;
    fs::path folder_;
    std::string path_;
};

TEST_F(Channel, IsAcceptedWhenTheDriverListsItBelow14)
{
    list("1 2 3 4 5 6 7 8 9 10 11 12 13 14");
    for (int channel = -1; channel <= 15; ++channel) {
        const int expected = channel >= 0 && channel <= 13 ? OSTREL_VALID : OSTREL_INVALID;
        EXPECT_EQ(expected, check(std::to_string(channel).c_str())) << channel;
        EXPECT_FALSE(list_is_left());
    }
}

TEST_F(Channel, RunsTheToolOnceForEachCall)
{
    list("1 6 11");
    EXPECT_EQ(OSTREL_VALID, check("6"));
    EXPECT_EQ("-i wl0 channels\n", calls());
    EXPECT_EQ(OSTREL_INVALID, check("7", "radio_2.4ghz"));
    EXPECT_EQ("-i wl0 channels\n-i wl0 channels\n", calls());
}

TEST_F(Channel, ClosesTheList)
{
    list("1 6 11");
    const auto open_files = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    const auto before = open_files();
    check("6");
    check("7");
    EXPECT_EQ(before, open_files());
}

TEST_F(Channel, RunsNoToolForTheAutomaticChannelAnd5GHzAndUnknownRadios)
{
    list("1 6 11");
    EXPECT_EQ(OSTREL_VALID, check("0"));
    EXPECT_EQ(OSTREL_VALID, check("0", "anything"));
    EXPECT_EQ(OSTREL_VALID, check("36", "RADIO_5GHz"));
    EXPECT_EQ(OSTREL_INVALID, check("6", "RADIO_5GHz"));
    EXPECT_EQ(OSTREL_INVALID, check("6", "anything"));
    EXPECT_EQ(OSTREL_INVALID, check("6", ""));
    EXPECT_EQ("", calls());
    EXPECT_FALSE(list_is_left());
}

TEST_F(Channel, IsReadAsANumber)
{
    list("0 6 9");
    for (const char* channel : {"6", " 6", "+6", "06", "6x", "6 7", "00", "abc", ""}) {
        EXPECT_EQ(OSTREL_VALID, check(channel)) << channel;
    }
    list("6 9");
    for (const char* channel : {"00", "abc", "", "-6", "60"})
        EXPECT_EQ(OSTREL_INVALID, check(channel)) << channel;
}

TEST_F(Channel, IsLookedForAmongFifteenNumbers)
{
    const std::string fourteen = "1 2 3 4 5 7 8 9 10 11 12 13 14 36 ";
    list(fourteen);
    EXPECT_EQ(OSTREL_INVALID, check("6"));
    EXPECT_EQ(OSTREL_VALID, check("13"));
    list(fourteen + "6");
    EXPECT_EQ(OSTREL_VALID, check("6"));
    list(fourteen + "6 0");
    EXPECT_EQ(OSTREL_VALID, check("6"));
    EXPECT_EQ(OSTREL_INVALID, check("00"));
    list(fourteen + "40 6");
    EXPECT_EQ(OSTREL_INVALID, check("6"));
    EXPECT_FALSE(list_is_left());
}

TEST_F(Channel, From14UpIsPassedOver)
{
    list("14 15 36 6");
    for (const char* channel : {"14", "15", "36"}) EXPECT_EQ(OSTREL_INVALID, check(channel)) << channel;
    EXPECT_EQ(OSTREL_VALID, check("6"));
}

TEST_F(Channel, BelowZeroIsOneLikeAnyOther)
{
    list("6 -3");
    EXPECT_EQ(OSTREL_VALID, check("-3"));
    EXPECT_EQ(OSTREL_INVALID, check("-4"));
}

TEST_F(Channel, MayBeListedInAnyLayout)
{
    list("1\\n2\\r\\n\\t3   04\\n\\n+5\\n");
    for (const char* channel : {"1", "2", "3", "4", "5"}) EXPECT_EQ(OSTREL_VALID, check(channel)) << channel;
}

TEST_F(Channel, BehindTextIsNotRead)
{
    list("1 2 x 6");
    EXPECT_EQ(OSTREL_VALID, check("2"));
    EXPECT_EQ(OSTREL_INVALID, check("6"));
    list("1,6");
    EXPECT_EQ(OSTREL_VALID, check("1"));
    EXPECT_EQ(OSTREL_INVALID, check("6"));
    list("channels: 6");
    EXPECT_EQ(OSTREL_INVALID, check("6"));
    EXPECT_FALSE(list_is_left());
}

TEST_F(Channel, IsRefusedWhenTheListIsEmpty)
{
    for (const char* text : {"", " ", "\\n"}) {
        list(text);
        EXPECT_EQ(OSTREL_INVALID, check("6"));
        EXPECT_EQ(OSTREL_INVALID, check("00"));
        EXPECT_FALSE(list_is_left());
    }
}

TEST_F(Channel, IsRefusedWhenTheToolFails)
{
    tool("echo no such interface >&2; exit 1");
    const Reply reply = ask("6");
    EXPECT_EQ(OSTREL_INVALID, reply.code);
    EXPECT_EQ("", reply.out);
    EXPECT_EQ("no such interface\n", reply.err);
    EXPECT_FALSE(list_is_left());
}

TEST_F(Channel, IsLookedForWhateverTheToolsExitStatus)
{
    tool("echo 6; exit 1");
    EXPECT_EQ(OSTREL_VALID, check("6"));
    EXPECT_FALSE(list_is_left());
}

// The shell chooses the wording of the error.
TEST_F(Channel, IsRefusedWhenThereIsNoTool)
{
    const Reply reply = ask("6");
    EXPECT_EQ(OSTREL_INVALID, reply.code);
    EXPECT_EQ("", reply.out);
    EXPECT_NE(std::string::npos, reply.err.find("wlctl")) << reply.err;
    EXPECT_EQ(OSTREL_VALID, check("0"));
    EXPECT_FALSE(list_is_left());
}

// The link is dangling, so neither the shell nor the check can open the file.
TEST_F(Channel, IsRefusedAndNothingDeletedWhenTheListCannotBeOpened)
{
    list("6");
    fs::create_symlink("/nonexistent/ostrel/list", kChannelList);
    const Reply reply = ask("6");
    EXPECT_EQ(OSTREL_INVALID, reply.code);
    EXPECT_EQ("", reply.out);
    EXPECT_NE(std::string::npos, reply.err.find(kChannelList)) << reply.err;
    EXPECT_TRUE(list_is_left());
    EXPECT_EQ("", calls());
}

TEST_F(Channel, OfAnEarlierListIsForgotten)
{
    std::ofstream(kChannelList) << "6";
    list("11");
    EXPECT_EQ(OSTREL_INVALID, check("6"));
    EXPECT_FALSE(list_is_left());
}

}  // namespace

}  // namespace ostrel::tests
