// What rows cannot say of the LAN checks: assertions, the refusal of the lease time, the device name's bytes.

#include <gtest/gtest.h>
#include <ostrel/lan_check.h>

#include <csignal>
#include <cstdint>
#include <string>

#include "catalogue/capture.h"

namespace ostrel::tests {

namespace {

struct Asserting {
    const char* name;
    int (*check)(const char* value_p);
};

void PrintTo(const Asserting& asserting, std::ostream* stream) { *stream << asserting.name; }

class LanAssertion : public testing::TestWithParam<Asserting> {};

const char* pointer(std::uintptr_t address)
{
    return reinterpret_cast<const char*>(address);  // NOLINT(performance-no-int-to-ptr)
}

}  // namespace

TEST_P(LanAssertion, EndsTheProcessForNull)
{
    const std::string report = std::string("lan_check:[0-9]+: ") + GetParam().name +
                               ": Assertion `value_p != \\(\\(void \\*\\)0\\)' failed";
    EXPECT_EXIT(GetParam().check(nullptr), testing::KilledBySignal(SIGABRT), report);
}

INSTANTIATE_TEST_SUITE_P(
    Every, LanAssertion,
    testing::Values(Asserting{"LAN_check_ipinterface_enabled", LAN_check_ipinterface_enabled},
                    Asserting{"LAN_check_ip_router", LAN_check_ip_router},
                    Asserting{"LAN_check_interface_subnet_mask", LAN_check_interface_subnet_mask},
                    Asserting{"LAN_check_interface_addr_type", LAN_check_interface_addr_type},
                    Asserting{"LAN_check_domain_name", LAN_check_domain_name},
                    Asserting{"LAN_check_dns_servers", LAN_check_dns_servers},
                    Asserting{"LAN_check_config_password", LAN_check_config_password},
                    Asserting{"LAN_check_dhcp_lease_time", LAN_check_dhcp_lease_time},
                    Asserting{"LAN_check_use_allocated_wan", LAN_check_use_allocated_wan},
                    Asserting{"LAN_check_associated_connection", LAN_check_associated_connection},
                    Asserting{"LAN_check_passthrough_lease", LAN_check_passthrough_lease},
                    Asserting{"LAN_check_subnet_mask", LAN_check_subnet_mask},
                    Asserting{"LAN_check_cis_dev_name", LAN_check_cis_dev_name}));

TEST(LeaseTime, NoOtherAddressIsRefusedOrRead)
{
    EXPECT_EQ(LAN_check_dhcp_lease_time(pointer(UINTPTR_MAX - 1)), 0);
    EXPECT_EQ(LAN_check_dhcp_lease_time(pointer(UINTPTR_MAX / 2)), 0);
    EXPECT_EQ(LAN_check_dhcp_lease_time(pointer(1)), 0);
}

// The line holds the value, and reading the one at that address ends the process.
TEST(LeaseTime, TheAddressOfAllOnesIsRefused)
{
    EXPECT_DEATH(LAN_check_dhcp_lease_time(pointer(UINTPTR_MAX)), "");
}

TEST(DeviceName, EveryFirstAndEveryLaterByte)
{
    for (int byte = 1; byte <= 255; ++byte) {
        const bool letter = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
        const bool other = (byte >= '0' && byte <= '9') || byte == ' ' || byte == '-';
        const std::string first(1, static_cast<char>(byte));
        const std::string later = "a" + first;
        catalogue::Capture capture;
        const int first_code = LAN_check_cis_dev_name(first.c_str());
        const int later_code = LAN_check_cis_dev_name(later.c_str());
        EXPECT_EQ(first_code, letter ? 0 : other ? -1 : 803) << byte;
        EXPECT_EQ(later_code, letter || other ? 0 : 803) << byte;
    }
}

}  // namespace ostrel::tests
