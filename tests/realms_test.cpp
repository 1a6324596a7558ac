// Tests that a library built for another ISP accepts that ISP's realms instead of the default ones.

#include <gtest/gtest.h>
#include <ostrel/accounts.h>

#include <string>

namespace ostrel::tests {

namespace {

int type_of(const std::string& name)
{
    int type = -1;
    EXPECT_EQ(0, TcmValidatePPPUsername(name.c_str(), &type)) << name;
    return type;
}

TEST(OtherRealms, AreThoseOfTheBuildOptions)
{
    EXPECT_EQ(1, type_of("1234567890123456789012345678@isp.invalid"));
    EXPECT_EQ(5, type_of("1234567890123456@setup.isp.invalid"));
    int type = -1;
    EXPECT_EQ(801, TcmValidatePPPUsername("someone@isp.invalid", &type));
    EXPECT_EQ(801, TcmValidatePPPUsername("someone@setup.isp.invalid", &type));
    EXPECT_EQ(-1, type);
}

TEST(OtherRealms, MakeOrdinaryNamesOfTheDefaultOnes)
{
    EXPECT_EQ(0, type_of("someone@example.net"));
    EXPECT_EQ(0, type_of("someone@setup.example.net"));
    EXPECT_EQ(0, type_of("@isp.invalid"));
    EXPECT_EQ(0, type_of("@setup.isp.invalid"));
}

}  // namespace

}  // namespace ostrel::tests
