// Tests the processor time for long lists of reserved addresses.

#include <gtest/gtest.h>
#include <ostrel/subnets.h>

#include <algorithm>
#include <ctime>
#include <limits>
#include <string>

namespace ostrel::tests {

namespace {

// cpu_seconds returns the least processor time of several runs. It excludes the time of other processes.
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

// The large list is 64 times as long as the small one. Quadratic growth would make it 4096 times as slow.
void expect_linear(const std::string& small, const std::string& large, const char* lan_address, int code)
{
    ASSERT_EQ(64U, large.size() / small.size());
    const double small_time = cpu_seconds(small, lan_address, code);
    const double large_time = cpu_seconds(large, lan_address, code);
    EXPECT_LT(large_time, 640 * small_time + 1e-3) << small_time << " s, then " << large_time << " s";
}

}  // namespace

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
    // A search that compared from the first byte would compare nearly all of the first item at each position
    // of the third.
    const auto list = [](std::size_t length) {
        const std::string same(length / 4 - 2, 'a');
        return same + "b," + same + "c," + same + same + "d,d";
    };
    expect_linear(list(1U << 14), list(1U << 20), "nodot", 0);
}

}  // namespace ostrel::tests
