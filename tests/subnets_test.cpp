// The list rules against their descriptions, and their time.

#include <gtest/gtest.h>
#include <ostrel/subnets.h>

#include <algorithm>
#include <ctime>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "tests/support/described.h"
#include "tests/support/random_lists.h"

namespace ostrel::tests {

namespace {

std::string lan(int last) { return "192.168.1." + std::to_string(last); }

// cpu_seconds is the least of several runs, in time of the processor: other processes do not count.
double cpu_seconds(const std::string& list, const char* lan_address, int code)
{
    std::clock_t least = std::numeric_limits<std::clock_t>::max();
    for (int run = 0; run < 7; ++run) {
        const std::clock_t start = std::clock();
        EXPECT_EQ(code, TcmValidateReservedAddress(list.c_str(), lan_address));
        least = std::min(least, std::clock() - start);
    }
    return static_cast<double>(least) / CLOCKS_PER_SEC;
}

// expect_linear compares the time for lists of which one is 64 times as long as the other; a time that grew
// with the square would be 4096 times as long.
void expect_linear(const std::string& small, const std::string& large, const char* lan_address, int code)
{
    ASSERT_EQ(64U, large.size() / small.size());
    const double small_time = cpu_seconds(small, lan_address, code);
    const double large_time = cpu_seconds(large, lan_address, code);
    EXPECT_LT(large_time, 640 * small_time + 1e-3) << small_time << " s, then " << large_time << " s";
}

}  // namespace

TEST(SameSubnet, EveryPairOfShortTextsIsAsDescribed)
{
    const std::string alphabet = "1.2";
    for (std::size_t length = 0; length <= 5; ++length) {
        std::string reference(length, alphabet[0]);
        for_each_text(reference, alphabet, [&] {
            for (std::size_t other_length = 0; other_length <= 5; ++other_length) {
                std::string address(other_length, alphabet[0]);
                for_each_text(address, alphabet, [&] {
                    ASSERT_EQ(described_code("isInSameSubnet", {reference, address}),
                              isInSameSubnet(reference.c_str(), address.c_str()))
                        << '"' << reference << "\" \"" << address << '"';
                });
            }
        });
    }
}

TEST(ReservedAddresses, EveryShortListIsAsDescribed)
{
    const std::string alphabet = "1., 2";
    std::size_t repeated = 0;
    for (std::size_t length = 0; length <= 7; ++length) {
        std::string list(length, alphabet[0]);
        for_each_text(list, alphabet, [&] {
            for (const char* lan_address : {"", "1", ".", "1.", "1.2"}) {
                const int expected = described_code("TcmValidateReservedAddress", {list, lan_address});
                repeated += expected == 701 ? 1 : 0;
                ASSERT_EQ(expected, TcmValidateReservedAddress(list.c_str(), lan_address))
                    << '"' << list << "\" \"" << lan_address << '"';
            }
        });
    }
    EXPECT_GT(repeated, 1000U);
}

TEST(ReservedAddresses, RandomListsAreAsDescribed)
{
    std::mt19937 random(1);  // NOLINT(bugprone-random-generator-seed): every run tries the same lists
    const std::vector<std::string> parts = {"1.1", "1.2", "1.12", "1.1 2", "2.1", "1.", ",", ",", " ", "\t"};
    std::vector<int> codes(702);
    for (int round = 0; round < 200000; ++round) {
        const std::string list = random_text(random, parts, 12);
        const char* lan_address = round % 2 == 0 ? "1.9" : "9";
        const int expected = described_code("TcmValidateReservedAddress", {list, lan_address});
        ASSERT_EQ(expected, TcmValidateReservedAddress(list.c_str(), lan_address)) << '"' << list << '"';
        ++codes.at(static_cast<std::size_t>(std::max(expected, 0)));
    }
    EXPECT_GT(codes[0], 1000);
    EXPECT_GT(codes[701], 1000);
}

TEST(ReservedAddresses, TakeLinearTimeWithoutEquallyLongNeighbours)
{
    const auto list = [](int pairs) {
        std::string text;
        for (int i = 0; i < pairs; ++i) text += "192.168.1.5,192.168.1.66,";
        return text.replace(text.size() - 1, 1, " ");
    };
    expect_linear(list(1024), list(1024 * 64), "192.168.1.1", 0);
}

TEST(ReservedAddresses, TakeLinearTimeForItemsThatEndDifferently)
{
    // A search that compared from the first byte on would compare nearly all of the first item at each place of the
    // third.
    const auto list = [](std::size_t length) {
        const std::string same(length / 4 - 2, 'a');
        return same + "b," + same + "c," + same + same + "d,d";
    };
    expect_linear(list(1U << 14), list(1U << 20), "nodot", 0);
}

TEST(OfferedDns, AreAsDescribed)
{
    std::mt19937 random(2);  // NOLINT(bugprone-random-generator-seed): every run tries the same lists
    const std::vector<std::string> parts = {"1.1.1.1", "1.1.1.1", "255.8.8.8", "1.1.1.256", ",", ",",
                                            ",",       " ",       "\t",        "1",         "."};
    int accepted = 0;
    for (int round = 0; round < 200000; ++round) {
        const std::string list = random_text(random, parts, 7);
        const int expected = described_code("TcmValidateofferDNS", {list});
        accepted += expected == 0 ? 1 : 0;
        ASSERT_EQ(expected, TcmValidateofferDNS(list.c_str())) << '"' << list << '"';
    }
    EXPECT_GT(accepted, 1000);
}

TEST(AddressRange, EveryPairOfLastNumbers)
{
    for (int start = 0; start <= 256; ++start) {
        for (int end = 0; end <= 256; ++end) {
            const bool valid = start >= 1 && end <= 254 && start <= end;
            ASSERT_EQ(valid ? 0 : -1,
                      TcmValidateAddressRange(lan(start).c_str(), lan(end).c_str(), "192.168.1.1"))
                << start << " to " << end;
        }
    }
}

TEST(RouterAddress, EveryThirdAndLastNumber)
{
    for (int third = 0; third <= 256; ++third) {
        for (int last = 0; last <= 256; ++last) {
            const std::string address = "192.168." + std::to_string(third) + '.' + std::to_string(last);
            ASSERT_EQ(third <= 255 && last >= 1 && last <= 254 ? 0 : -1, TcmValidateIPRouter(address.c_str()))
                << address;
        }
    }
}

TEST(RouterAddress, EveryFirstAndSecondNumber)
{
    for (int first = 0; first <= 255; ++first) {
        for (int second = 0; second <= 255; ++second) {
            const std::string address = std::to_string(first) + '.' + std::to_string(second) + ".1.1";
            ASSERT_EQ(first == 192 && second == 168 ? 0 : -1, TcmValidateIPRouter(address.c_str()))
                << address;
        }
    }
}

}  // namespace ostrel::tests
