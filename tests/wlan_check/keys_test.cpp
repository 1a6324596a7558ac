// Tests which bytes of a WEP key block are written. The vectors cannot express this.

#include <gtest/gtest.h>
#include <ostrel/result_code.h>
#include <ostrel/wlan_check.h>

#include <array>
#include <cstring>
#include <string>

#include "calling/capture.h"

namespace ostrel::tests {

namespace {

constexpr std::size_t kDistance = 257;
constexpr char kFilling = '\x5A';

using Keys = std::array<std::string, 4>;
using Block = std::array<char, 4 * kDistance>;

Block block_of(const Keys& keys)
{
    Block block;
    block.fill(kFilling);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        std::memcpy(block.data() + i * kDistance, keys[i].c_str(), keys[i].size() + 1);
    }
    return block;
}

// check expects WLAN_check_wepkeys to write only a NUL at the start of these keys, and returns its code.
int check(const Keys& keys, const std::array<bool, 4>& emptied)
{
    Block block = block_of(keys);
    Block expected = block;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (emptied.at(i)) expected.at(i * kDistance) = '\0';
    }
    int code = 0;
    {
        const calling::Capture capture;
        code = WLAN_check_wepkeys(block.data());
    }
    EXPECT_TRUE(block == expected);
    return code;
}

constexpr char kKey[] = "0123456789";

TEST(WepKeys, OnlyTheFirstByteOfAnEmptiedKeyIsWritten)
{
    const std::string longest(256, '\t');
    EXPECT_EQ(OSTREL_VALID, check({kKey, kKey, kKey, kKey}, {}));
    EXPECT_EQ(OSTREL_VALID, check({"\t123456789", kKey, longest, "caf\xE9"}, {true, false, true, true}));
    EXPECT_EQ(OSTREL_INVALID_VALUE, check({longest, longest, longest, longest}, {true, true, true, true}));
    EXPECT_EQ(OSTREL_INVALID_VALUE, check({"", "", "", ""}, {}));
}

TEST(WepKeys, KeysStayEmptiedWhenALaterOneIsRefusedAndLaterOnesStay)
{
    EXPECT_EQ(OSTREL_TOO_SHORT, check({"\x7F", "\x80", "abc", "\t"}, {true, true, false, false}));
    EXPECT_EQ(OSTREL_FORBIDDEN_CHARACTER, check({"\x01", "xyz", "\t", "\t"}, {true, false, false, false}));
}

}  // namespace

}  // namespace ostrel::tests
