// What rows cannot say of the port mapping checks: assertions, and every port.

#include <gtest/gtest.h>
#include <ostrel/port_mapping_check.h>

#include <csignal>
#include <set>
#include <string>

#include "catalogue/capture.h"

namespace ostrel::tests {

namespace {

const char* const kCondition = ": Assertion `value_p != \\(\\(void \\*\\)0\\)' failed";

}  // namespace

TEST(PortAvailable, NullIsAssertedByTheLookupForTCP)
{
    EXPECT_EXIT(PORTMAPPING_check_port_available(nullptr, 0), testing::KilledBySignal(SIGABRT),
                std::string("port_mapping_check:[0-9]+: is_port_reserved") + kCondition);
}

TEST(PortAvailable, NullIsAssertedByTheRuleForUDP)
{
    EXPECT_EXIT(PORTMAPPING_check_port_available(nullptr, 1), testing::KilledBySignal(SIGABRT),
                std::string("port_mapping_check:[0-9]+: is_wan_udp_port_available") + kCondition);
}

TEST(PortAvailable, EveryPort)
{
    const std::set<int> tcp = {80, 161, 443, 1723, 1728, 6667, 7547};
    const std::set<int> udp = {161, 5060};
    for (int port = -1; port <= 65536; ++port) {
        const std::string text = std::to_string(port);
        const bool media = port >= 54000 && port < 55000;
        catalogue::Capture capture;
        const int tcp_code = PORTMAPPING_check_port_available(text.c_str(), 0);
        const int udp_code = PORTMAPPING_check_port_available(text.c_str(), 1);
        ASSERT_EQ(tcp_code, tcp.contains(port) ? 402 : 0) << port;
        ASSERT_EQ(udp_code, udp.contains(port) || media ? 402 : 0) << port;
    }
}

}  // namespace ostrel::tests
