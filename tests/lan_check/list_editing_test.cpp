// Tests which bytes are written when a list is edited, and which are left unchanged.

#include <gtest/gtest.h>
#include <ostrel/lan_check.h>

#include <string>
#include <vector>

#include "calling/capture.h"

namespace ostrel::tests {

namespace {

constexpr std::size_t kRoom = 256;

// unfilled returns a buffer with the text and its terminator, followed by nonzero bytes.
std::string unfilled(const std::string& text)
{
    std::string buffer(kRoom, '\xAA');
    buffer.replace(0, text.size() + 1, text + '\0');
    return buffer;
}

}  // namespace

TEST(AllowedMacAddresses, AnEmptyListGetsNoTerminator)
{
    for (const std::string& address : {std::string(), std::string("x"), std::string("00:11:22:33:44:55"),
                                       std::string(kRoom, 'x'), std::string(kRoom - 1, 'x')}) {
        std::string buffer = unfilled("");
        std::string expected = buffer;
        expected.replace(0, address.size(), address);
        EXPECT_EQ(0, LAN_check_add_allowedMACAddress(address.c_str(), buffer.data()));
        EXPECT_EQ(expected, buffer) << address;
    }
}

TEST(AllowedMacAddresses, ALongerListGetsATerminator)
{
    const std::string address = "00:11:22:33:44:55";
    for (std::size_t length = 1; length <= 142; ++length) {
        const std::string list(length, 'z');
        std::string buffer = unfilled(list);
        EXPECT_EQ(0, LAN_check_add_allowedMACAddress(address.c_str(), buffer.data()));
        EXPECT_EQ(unfilled(list + ',' + address), buffer) << length;
    }
}

TEST(AllowedMacAddresses, ARefusalLeavesEveryByte)
{
    const std::vector<std::pair<std::string, std::string>> refused = {
        {"zz", std::string(142, 'z')},
        {"", "z"},
        {"00:11:22:33:44:5", "z"},
        {"00:11:22:33:44:55", std::string(143, 'z')},
    };
    for (const auto& [address, list] : refused) {
        std::string buffer = unfilled(list);
        const calling::Capture capture;
        EXPECT_EQ(-1, LAN_check_add_allowedMACAddress(address.c_str(), buffer.data()));
        EXPECT_EQ(unfilled(list), buffer) << address;
    }
}

}  // namespace ostrel::tests
