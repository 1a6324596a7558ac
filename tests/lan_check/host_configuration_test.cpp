// Tests that the lease-time check refuses only one pointer, the highest address. Rows cannot express this.

#include <gtest/gtest.h>
#include <ostrel/lan_check.h>

#include <cstdint>

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

// To report the refusal, the check prints the value, but reading it at that address ends the process.
TEST(LeaseTime, TheAddressOfAllOnesIsRefused)
{
    EXPECT_DEATH(LAN_check_dhcp_lease_time(pointer(UINTPTR_MAX)), "");
}

}  // namespace ostrel::tests
