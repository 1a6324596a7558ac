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
        EXPECT_EQ(TcmValidatePortMappingDescription(value.c_str()), printable) << byte;
        EXPECT_EQ(TCM_validate_device_name(value.c_str(), 1), printable) << byte;
        const bool letter_or_digit =
            (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
        const bool mark = std::strchr("!()*-/;?_", byte) != nullptr;
        EXPECT_EQ(TcmValidateRouterName(value.c_str()), letter_or_digit || mark ? 0 : 803) << byte;
    }
}

}  // namespace ostrel::tests
