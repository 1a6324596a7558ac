// What rows cannot say of the list edits: the exact bytes written, and many edits of DNS servers.

#include <gtest/gtest.h>
#include <ostrel/lan_check.h>

#include <random>
#include <string>
#include <vector>

#include "calling/capture.h"
#include "tests/support/described.h"
#include "tests/support/random_lists.h"

namespace ostrel::tests {

namespace {

constexpr std::size_t kRoom = 256;

// unfilled is a buffer that holds the text, its terminator, and behind it what a zero-filled one would not.
std::string unfilled(const std::string& text)
{
    std::string buffer(kRoom, '\xAA');
    buffer.replace(0, text.size() + 1, text + '\0');
    return buffer;
}

struct Answer {
    int code;
    std::string out;

    bool operator==(const Answer&) const = default;
};

void PrintTo(const Answer& answer, std::ostream* stream) { *stream << answer.code << ' ' << answer.out; }

const std::vector<std::string>& server_parts()
{
    static const std::vector<std::string> parts = {"1.1.1.1", "1.1.1.1", "8.8.8.8", "10.0.0.1",
                                                   "0",       ",",       ",",       " "};
    return parts;
}

using Edit = int (*)(const char*, const char*);

void expect_as_described(const char* name, Edit edit, int code)
{
    std::mt19937 random(3);  // NOLINT(bugprone-random-generator-seed): every run tries the same lists
    int with_code = 0;
    std::string one;
    std::string other;
    Answer expected{};
    Answer actual{};
    {
        // One for all rounds, as each costs much; what differs is told when it is gone.
        calling::Capture capture;
        for (int round = 0; round < 100000 && expected == actual; ++round) {
            one = random_text(random, server_parts(), 4);
            other = random_text(random, server_parts(), 4);
            actual.code = edit(one.c_str(), other.c_str());
            const calling::Printed printed = capture.take();
            actual.out = printed.flushed == printed.out.size() ? printed.out : "not flushed";
            const rules::Answer answer = described(name, {one, other});
            expected = {answer.code, answer.is_flushed() ? answer.out : "not flushed"};
            with_code += expected.code == code ? 1 : 0;
        }
    }
    ASSERT_EQ(expected, actual) << '"' << one << "\" \"" << other << '"';
    EXPECT_GT(with_code, 500);
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

TEST(DnsServers, AddingIsAsDescribed)
{
    expect_as_described("LAN_check_add_dns_servers", LAN_check_add_dns_servers, 701);
}

TEST(DnsServers, DeletingIsAsDescribed)
{
    expect_as_described("LAN_check_delete_dns_server", LAN_check_delete_dns_server, 702);
}

}  // namespace ostrel::tests
