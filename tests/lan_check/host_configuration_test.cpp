// What rows cannot say of the LAN checks: the refusal of the lease time, the device name's bytes.

#include <gtest/gtest.h>
#include <ostrel/lan_check.h>

#include <cstdint>
#include <string>

#include "calling/capture.h"

namespace ostrel::tests {

namespace {

const char* pointer(std::uintptr_t address)
{
    return reinterpret_cast<const char*>(address);  // NOLINT(performance-no-int-to-ptr)
}

}  // namespace

TEST(LeaseTime, NoOtherAddressIsRefusedOrRead)
{
    EXPECT_EQ(0, LAN_check_dhcp_lease_time(pointer(UINTPTR_MAX - 1)));
    EXPECT_EQ(0, LAN_check_dhcp_lease_time(pointer(UINTPTR_MAX / 2)));
    EXPECT_EQ(0, LAN_check_dhcp_lease_time(pointer(1)));
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
        const calling::Capture capture;
        const int first_code = LAN_check_cis_dev_name(first.c_str());
        const int later_code = LAN_check_cis_dev_name(later.c_str());
        EXPECT_EQ(letter ? 0 : other ? -1 : 803, first_code) << byte;
        EXPECT_EQ(letter || other ? 0 : 803, later_code) << byte;
    }
}

}  // namespace ostrel::tests
