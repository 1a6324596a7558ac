// What rows cannot say of the port mapping checks: every port.

#include <gtest/gtest.h>
#include <ostrel/port_mapping_check.h>

#include <map>
#include <string>

#include "calling/capture.h"

namespace ostrel::tests {

TEST(PortAvailable, EveryPort)
{
    using Codes = std::map<int, int>;  // of the ports that are refused
    Codes expected_tcp;
    for (const int port : {80, 161, 443, 1723, 1728, 6667, 7547}) expected_tcp[port] = 402;
    Codes expected_udp = {{161, 402}, {5060, 402}};
    for (int media = 54000; media < 55000; ++media) expected_udp[media] = 402;
    Codes tcp;
    Codes udp;
    {
        const calling::Capture capture;
        for (int port = -1; port <= 65536; ++port) {
            const std::string text = std::to_string(port);
            if (const int code = PORTMAPPING_check_port_available(text.c_str(), 0)) tcp[port] = code;
            if (const int code = PORTMAPPING_check_port_available(text.c_str(), 1)) udp[port] = code;
        }
    }
    EXPECT_EQ(expected_tcp, tcp);
    EXPECT_EQ(expected_udp, udp);
}

}  // namespace ostrel::tests
