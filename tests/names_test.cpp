// Every byte through each set of the names.

#include <gtest/gtest.h>
#include <ostrel/names.h>

#include <cstring>
#include <string>

namespace ostrel::tests {

TEST(Names, EveryByte)
{
    for (int byte = 1; byte <= 255; ++byte) {
        const std::string value(1, static_cast<char>(byte));
        const int printable = byte >= 0x20 && byte <= 0x7E ? 0 : 803;
        EXPECT_EQ(printable, TcmValidatePortMappingDescription(value.c_str())) << byte;
        EXPECT_EQ(printable, TCM_validate_device_name(value.c_str(), 1)) << byte;
        const bool letter_or_digit =
            (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
        const bool mark = std::strchr("!()*-/;?_", byte) != nullptr;
        EXPECT_EQ(letter_or_digit || mark ? 0 : 803, TcmValidateRouterName(value.c_str())) << byte;
    }
}

}  // namespace ostrel::tests
